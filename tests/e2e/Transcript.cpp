#include "tests/e2e/Transcript.h"

static const QString indentation = QStringLiteral("    ");

QString Transcript::text() const
{
    QStringList lines;
    for (const TranscriptEntry &entry : entries) {
        lines += entry.source;
        for (const QString &line : entry.expected)
            lines += indentation + line;
    }
    return (lines + rest).join(QLatin1Char('\n'));
}

Transcript parseTranscript(const QString &text)
{
    static const QVector<QPair<QString, TranscriptEntry::Kind>> openings {
        { QStringLiteral("menu "), TranscriptEntry::Screens },
        { QStringLiteral("translations "), TranscriptEntry::Translations },
        { QStringLiteral("tool "), TranscriptEntry::Answer },
        { QStringLiteral("> "), TranscriptEntry::Step }
    };
    Transcript transcript;
    QVector<TranscriptEntry> &entries = transcript.entries;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString &line = lines.at(i);
        const QString words = line.mid(indentation.size());
        const auto *const opening = std::find_if(openings.begin(), openings.end(),
            [&words](const auto &candidate) { return words.startsWith(candidate.first); });
        if (!line.startsWith(indentation)) {
            transcript.rest += line;
        } else if (opening != openings.end()) {
            entries.append({ opening->second, words.mid(opening->first.size()), i + 1,
                transcript.rest << line, {} });
            transcript.rest.clear();
        } else if (entries.isEmpty() || entries.last().kind == TranscriptEntry::Answer) {
            transcript.error = QStringLiteral("%1 is part of nothing").arg(line.trimmed());
        } else if (entries.last().kind == TranscriptEntry::Step) {
            entries.last().expected += words;
        } else {
            entries.last().source += line;
            entries.last().text += QLatin1Char('\n') + words;
        }
    }
    return transcript;
}
