#include "app/MessageLog.h"

#include <QString>
#include <QtGlobal>

#include <cstdio>

#include <syslog.h>
#include <unistd.h>

namespace {

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

void logMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QByteArray line = qFormatLogMessage(type, context, message).toLocal8Bit();
    if (type == QtFatalMsg || !isatty(STDERR_FILENO))
        std::fprintf(stderr, "%s\n", line.constData());
    else
        syslog(priorityOf(type), "%s", line.constData());
}

} // namespace

void installMessageLog()
{
    qInstallMessageHandler(logMessage);
}
