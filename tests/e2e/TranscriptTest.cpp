// Plays transcripts of sessions: transcript-test [--rewrite] FILE...|FOLDER. With --rewrite it
// writes what it sees into the files, for a person to read in the difference to before.
#include "tests/e2e/TranscriptPlayer.h"

#include <QFile>

#include <cstdio>

namespace {

void print(const QString &title, const QStringList &lines = {})
{
    std::puts((QStringList(title) + lines).join(QStringLiteral("\n    ")).toUtf8().constData());
}

// Plays a step or changes the device; false when that fails or something else comes of it.
bool playEntry(TranscriptPlayer &player, TranscriptEntry &entry, const QString &path, bool rewrites)
{
    const QString error = player.play(entry);
    if (error.isEmpty() && entry.kind != TranscriptEntry::Step)
        return true;
    const QStringList seen = player.outcome();
    if (error.isEmpty() && (rewrites || seen == entry.expected)) {
        entry.expected = seen;
        return true;
    }
    print(QStringLiteral("\n%1:%2: %3\nexpected:")
              .arg(path)
              .arg(entry.line)
              .arg(error.isEmpty() ? QStringLiteral("something else came of it") : error),
        entry.expected);
    print(QStringLiteral("seen:"), QStringList(QStringLiteral("> ") + entry.text) + seen);
    print(QStringLiteral("the whole screen:"), player.screen());
    print(QStringLiteral("The notation is described in tests/e2e/README.md."));
    return false;
}

// Plays a transcript, whose expectations become what was seen if that is wanted.
bool check(const QString &path, bool rewrites)
{
    QFile file(path);
    Transcript transcript = parseTranscript(
        file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString());
    file.close();
    if (transcript.entries.isEmpty() || !transcript.error.isEmpty()) {
        print(QStringLiteral("%1: no transcript; %2").arg(path, transcript.error));
        return false;
    }
    TranscriptPlayer player;
    for (TranscriptEntry &entry : transcript.entries) {
        if (!playEntry(player, entry, path, rewrites))
            return false;
    }
    const QByteArray text = transcript.text().toUtf8();
    return !rewrites || (file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

} // namespace

int main(int argc, char **argv)
{
    QStringList files;
    for (int i = 1; i < argc; ++i)
        files += QFile::decodeName(argv[i]);
    const bool rewrites = files.removeAll(QStringLiteral("--rewrite")) > 0;
    int bad = 0;
    for (const QString &file : files)
        bad += check(file, rewrites) ? 0 : 1;
    print(QStringLiteral("%1 transcripts, %2 bad").arg(files.size()).arg(bad));
    return files.isEmpty() || bad > 0 ? 1 : 0;
}
