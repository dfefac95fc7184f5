// Plays transcripts of sessions: transcript-test [--rewrite] FILE... With --rewrite it writes
// what it sees into the files, for a person to read in the difference to before.
#include "tests/e2e/TranscriptPlayer.h"
#include "tests/support/Files.h"

#include <QRegularExpression>

#include <cstdio>
#include <optional>

namespace {

const QString indentation = "    ";
const QRegularExpression opening("^    (menu|translations|tool|>) (.*)$");

void print(const QString &title, const QStringList &lines = {})
{
    std::puts((QStringList(title) + lines).join("\n    ").toUtf8().constData());
}

bool isProse(const QString &line)
{
    return line.isEmpty() || !line.at(0).isSpace();
}

// The entry that begins at line `i`, which becomes its last line.
TranscriptEntry takeEntry(const QStringList &lines, int &i)
{
    const QRegularExpressionMatch words = opening.match(lines.at(i));
    TranscriptEntry entry { words.captured(1), words.captured(2), {} };
    while (lines.value(i + 1).startsWith(indentation) && !opening.match(lines[i + 1]).hasMatch())
        entry.further += lines.at(++i).mid(indentation.size());
    return entry;
}

// Plays an entry and returns what came of it, nothing when that was not to be.
std::optional<QStringList> play(
    TranscriptPlayer &player, const TranscriptEntry &entry, const QString &place, bool rewrites)
{
    const QString error = player.play(entry);
    const QStringList seen = entry.word == ">" ? player.outcome() : entry.further;
    if (error.isEmpty() && (rewrites || seen == entry.further))
        return seen;
    print(place + (error.isEmpty() ? "something else came of it" : error));
    print("expected:", entry.further);
    print("seen:", QStringList(entry.word + ' ' + entry.text) + seen);
    print("the whole screen (its notation is in tests/e2e/README.md):", player.screen());
    return std::nullopt;
}

// Plays a transcript, whose expectations become what was seen if that is wanted.
bool check(const QString &path, bool rewrites)
{
    const QStringList lines = QString(readFile(path)).split('\n');
    TranscriptPlayer player;
    QStringList written;
    for (int i = 0; i < lines.size(); ++i) {
        const QString &line = lines.at(i);
        const QString place = QString("\n%1:%2: ").arg(path).arg(i + 1);
        written += line;
        if (isProse(line))
            continue;
        if (!line.startsWith(indentation)) {
            print(place + "indented by less than four blanks");
            return false;
        }
        const auto seen = play(player, takeEntry(lines, i), place, rewrites);
        if (!seen)
            return false;
        for (const QString &line : *seen)
            written += indentation + line;
    }
    if (!player.isStarted())
        print(path + ": no transcript, nothing was started");
    else if (rewrites)
        writeFile(path, written.join('\n').toUtf8());
    return player.isStarted();
}

} // namespace

int main(int argc, char **argv)
{
    QStringList files;
    for (int i = 1; i < argc; ++i)
        files += QFile::decodeName(argv[i]);
    const bool rewrites = files.removeAll("--rewrite") > 0;
    int bad = 0;
    for (const QString &file : files)
        bad += check(file, rewrites) ? 0 : 1;
    print(QString("%1 transcripts, %2 bad").arg(files.size()).arg(bad));
    return files.isEmpty() || bad > 0 ? 1 : 0;
}
