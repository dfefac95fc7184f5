#include "bench/session/Program.h"

#include <QDir>
#include <QFile>

namespace {

constexpr int patienceMs = 10000;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The number after a label in a file of /proc.
double numberAfter(const QByteArray &text, const QByteArray &label)
{
    const int place = text.indexOf('\n' + label + ':');
    if (place < 0)
        return 0;
    const QByteArray rest = text.mid(place + label.size() + 2).simplified();
    return rest.left(rest.indexOf(' ')).toDouble();
}

} // namespace

Program::Program(const QStringList &command)
{
    process.setStandardError(QStringLiteral("/dev/tty"));
    started.start();
    if (!process.start(command.first(), command.mid(1), 24, 80))
        qFatal("no terminal for %s", qPrintable(command.first()));
}

Reply Program::firstFrame(int quietMs)
{
    constexpr double restUs = 1000;
    Reply frame;
    double cpuUs = 0;
    do {
        cpuUs = usage().cpuUs;
        collect(frame, started, frame.bytes.isEmpty() ? patienceMs : quietMs, quietMs);
    } while (isRunning() && usage().cpuUs - cpuUs > restUs && !started.hasExpired(patienceMs));
    return frame;
}

Reply Program::press(const QByteArray &key, int quietMs)
{
    constexpr int reactionMs = 500;
    QElapsedTimer typed;
    typed.start();
    Reply answer;
    if (process.send(key))
        collect(answer, typed, reactionMs, quietMs);
    return answer;
}

void Program::collect(Reply &reply, const QElapsedTimer &since, int firstMs, int quietMs)
{
    QByteArray output = process.read(firstMs);
    while (!output.isEmpty() && !since.hasExpired(patienceMs)) {
        reply.us = elapsedUs(since);
        reply.bytes += output;
        output = process.read(quietMs);
    }
}

Usage Program::usage() const
{
    Usage usage;
    const QDir directory(QStringLiteral("/proc/%1").arg(process.pid()));
    const QDir threads(directory.filePath(QStringLiteral("task")));
    for (const QString &thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        // Time on a processor in ns, time waiting for one, number of slices.
        const QByteArrayList schedule =
            contentOf(threads.filePath(thread + QLatin1String("/schedstat"))).split(' ');
        usage.cpuUs += schedule.value(0).toDouble() / 1000;
        usage.wakeUps += schedule.value(2).trimmed().toDouble();
        const QByteArray status = contentOf(threads.filePath(thread + QLatin1String("/status")));
        usage.switches += numberAfter(status, "voluntary_ctxt_switches")
            + numberAfter(status, "nonvoluntary_ctxt_switches");
    }
    usage.writes = numberAfter(contentOf(directory.filePath(QStringLiteral("io"))), "syscw");
    return usage;
}

double Program::peakMemory() const
{
    return numberAfter(contentOf(QStringLiteral("/proc/%1/status").arg(process.pid())), "VmHWM");
}
