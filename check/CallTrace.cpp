#include "check/CallTrace.h"

#include "json/JsonWriter.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace {

QByteArray member(const char *key, const QVariant &value)
{
    return '"' + QByteArray(key) + "\":" + jsonText(value).value_or("null");
}

// Bytes that are no UTF-8 become U+FFFD.
QByteArray member(const char *key, const QByteArray &text)
{
    return member(key, QVariant(QString::fromUtf8(text)));
}

QByteArray endMember(const ToolEnd &end)
{
    switch (end.kind) {
    case ToolEnd::NotStarted:
        return member("notStarted", QByteArray(std::strerror(end.number)));
    case ToolEnd::Exited:
        return member("exit", QVariant(end.number));
    case ToolEnd::Signalled:
        return member("signal", QVariant(end.number));
    case ToolEnd::TimedOut:
        return member("killed", QByteArray("it took too long"));
    case ToolEnd::PrintedTooMuch:
        return member("killed", QByteArray("it printed too much"));
    case ToolEnd::Abandoned:
        break;
    }
    return member("killed", QByteArray("the session ended"));
}

} // namespace

CallTrace::~CallTrace()
{
    writeRest();
    if (file >= 0)
        close(file);
}

QString CallTrace::open(const QString &path)
{
    // For reading, too: a pipe can then be opened before its reader, and survives it.
    file = ::open(QFile::encodeName(path).constData(),
        O_RDWR | O_CREAT | O_TRUNC | O_APPEND | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666);
    return file >= 0 ? QString()
                     : QStringLiteral("cannot write %1: %2")
                           .arg(path, QString::fromLocal8Bit(std::strerror(errno)));
}

ToolRun CallTrace::run(const QString &tool, const QStringList &arguments, int timeoutMs)
{
    const QTime start = QTime::currentTime();
    ToolRun run = BackendTool::observedRun(tool, arguments, timeoutMs);
    const QByteArrayList members {
        member("time", start.toString(QStringLiteral("HH:mm:ss.zzz")).toLatin1()),
        member("ms", QVariant(run.durationUs / 1000)),
        member("arguments", QVariant(arguments)),
        endMember(run.end),
        member("answer", run.output),
        member("errors", run.errors),
    };
    write('{' + members.join(',') + "}\n");
    return run;
}

void CallTrace::write(const QByteArray &line)
{
    if (file < 0 || !writeRest())
        return;
    rest = line;
    if (!writeRest() && rest.size() == line.size())
        rest.clear();
}

bool CallTrace::writeRest()
{
    const ssize_t written =
        rest.isEmpty() ? 0 : ::write(file, rest.constData(), size_t(rest.size()));
    rest.remove(0, int(qMax<ssize_t>(written, 0)));
    return rest.isEmpty();
}
