#include "tests/e2e/Transcript.h"

static const QString indentation = QStringLiteral("    ");
static const QString fence = QStringLiteral("```");

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

// Takes the lines up to the closing fence; false without one.
static bool takeFenced(const QStringList &lines, int &index, TranscriptEntry &entry)
{
    for (++index; index < lines.size(); ++index) {
        entry.source += lines.at(index);
        if (lines.at(index) == fence)
            return true;
        entry.text += lines.at(index) + QLatin1Char('\n');
    }
    return false;
}

Transcript parseTranscript(const QString &text)
{
    static const QVector<QPair<QString, TranscriptEntry::Kind>> openings {
        { fence + QStringLiteral("json"), TranscriptEntry::Translations },
        { fence + QStringLiteral("js"), TranscriptEntry::Screens },
        { indentation + QStringLiteral("tool "), TranscriptEntry::Answer },
        { indentation + QStringLiteral("> "), TranscriptEntry::Step }
    };
    Transcript transcript;
    QVector<TranscriptEntry> &entries = transcript.entries;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size() && transcript.error.isEmpty(); ++i) {
        const QString &line = lines.at(i);
        const auto *const opening = std::find_if(openings.begin(), openings.end(),
            [&line](const auto &candidate) { return line.startsWith(candidate.first); });
        bool isKnown = true;
        if (opening != openings.end()) {
            const QString words = line.mid(opening->first.size());
            entries.append({ opening->second, words, i + 1, transcript.rest << line, {} });
            transcript.rest.clear();
            isKnown = !line.startsWith(fence)
                || (words.isEmpty() && takeFenced(lines, i, entries.last()));
        } else if (line.startsWith(indentation)) {
            isKnown = !entries.isEmpty() && entries.last().kind == TranscriptEntry::Step;
            if (isKnown)
                entries.last().expected += line.mid(indentation.size());
        } else {
            isKnown = !line.startsWith(fence);
            transcript.rest += line;
        }
        if (!isKnown)
            transcript.error = QStringLiteral("%1 is part of nothing").arg(line.trimmed());
    }
    return transcript;
}
