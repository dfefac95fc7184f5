// The system's log daemon.
#pragma once

#include <QByteArray>

/// Sends lines to the log daemon's datagram socket and never waits: syslog() blocks for as long as
/// a daemon does not read.
class SystemLog {
public:
    /// Connects with the first line.
    explicit SystemLog(const QByteArray &socketPath);
    ~SystemLog();
    Q_DISABLE_COPY(SystemLog)

    /// Sends one line with a priority of <syslog.h>; a line above 8 KiB is cut. False if there is
    /// no daemon, or if it does not take the line at once.
    bool send(int priority, const QByteArray &line);

private:
    bool connectSocket();

    const QByteArray socketPath;
    int socket = -1;
};
