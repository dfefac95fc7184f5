#include "app/MessageLog.h"

#include "app/SystemLog.h"
#include "platform/WriteAtOnce.h"

#include <QMap>
#include <QString>
#include <QtGlobal>

#include <memory>

#include <syslog.h>
#include <unistd.h>

namespace {

std::unique_ptr<SystemLog> systemLog;
int droppedMessages = 0;
bool isLineOpen = false; // standard error took only the start of the last line

int priorityOf(QtMsgType type)
{
    static const QMap<QtMsgType, int> priorities { { QtDebugMsg, LOG_DEBUG },
        { QtInfoMsg, LOG_INFO }, { QtWarningMsg, LOG_WARNING }, { QtCriticalMsg, LOG_ERR } };
    return priorities.value(type, LOG_CRIT);
}

bool writeToStandardError(const QByteArray &line)
{
    const QByteArray text = (isLineOpen ? "\n" : "") + line + '\n';
    const size_t written = writeAtOnce(STDERR_FILENO, text.constData(), size_t(text.size()));
    if (written > 0)
        isLineOpen = written < size_t(text.size());
    return written == size_t(text.size());
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
    const bool isHopeless = droppedMessages > 0 && type != QtFatalMsg;
    if (isHopeless || !deliver(type, line))
        ++droppedMessages;
}

} // namespace

void installMessageLog(const QByteArray &logSocket)
{
    systemLog = std::make_unique<SystemLog>(logSocket);
    qInstallMessageHandler(logMessage);
}
