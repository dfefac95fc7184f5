// Keeps the console's messages off standard error.
#pragma once

#include <QtGlobal>

/// Discards messages for a scope, where what they say is reported as findings.
class QuietMessages {
public:
    QuietMessages()
        : former(
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}))
    {
    }
    ~QuietMessages() { qInstallMessageHandler(former); }
    Q_DISABLE_COPY(QuietMessages)

private:
    const QtMessageHandler former;
};
