#include "app/MessageLog.h"

#include "app/SystemLog.h"

#include <QString>
#include <QtGlobal>

#include <cerrno>
#include <memory>

#include <limits.h>
#include <poll.h>
#include <syslog.h>
#include <unistd.h>

namespace {

std::unique_ptr<SystemLog> systemLog;
int droppedMessages = 0;
bool isLineOpen = false; // standard error took only the start of the last line

int priorityOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return LOG_DEBUG;
    case QtInfoMsg:
        return LOG_INFO;
    case QtWarningMsg:
        return LOG_WARNING;
    case QtCriticalMsg:
        return LOG_ERR;
    case QtFatalMsg:
        return LOG_CRIT;
    }
    return LOG_NOTICE;
}

// A pipe that can be written to takes at least this many bytes at once.
constexpr int safeLength = PIPE_BUF;

// The number of bytes of `text` that standard error takes without waiting.
int writeAtOnce(const QByteArray &text)
{
    int written = 0;
    while (written < text.size()) {
        pollfd writable = { STDERR_FILENO, POLLOUT, 0 };
        if (poll(&writable, 1, 0) <= 0)
            break;
        const int length = qMin(text.size() - written, safeLength);
        const ssize_t result = write(STDERR_FILENO, text.constData() + written, size_t(length));
        if (result < 0 && errno != EINTR)
            break;
        written += int(qMax<ssize_t>(result, 0));
    }
    return written;
}

bool writeToStandardError(const QByteArray &line)
{
    const QByteArray text = (isLineOpen ? "\n" : "") + line + '\n';
    const int written = writeAtOnce(text);
    if (written > 0)
        isLineOpen = written < text.size();
    return written == text.size();
}

bool deliver(QtMsgType type, const QByteArray &line)
{
    if (type == QtFatalMsg || !isatty(STDERR_FILENO))
        return writeToStandardError(line);
    return systemLog->send(priorityOf(type), line);
}

void logMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (droppedMessages > 0
        && deliver(QtWarningMsg, "Messages dropped: " + QByteArray::number(droppedMessages)))
        droppedMessages = 0;
    const QByteArray line = qFormatLogMessage(type, context, message).toLocal8Bit();
    if (droppedMessages > 0 && type != QtFatalMsg)
        ++droppedMessages;
    else if (!deliver(type, line))
        ++droppedMessages;
}

} // namespace

void installMessageLog(const QByteArray &logSocket)
{
    systemLog = std::make_unique<SystemLog>(logSocket);
    qInstallMessageHandler(logMessage);
}
