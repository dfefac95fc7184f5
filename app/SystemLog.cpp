#include "app/SystemLog.h"

#include <QString>

#include <cerrno>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

SystemLog::SystemLog(const QByteArray &socketPath)
    : socketPath(socketPath)
{
}

SystemLog::~SystemLog()
{
    if (socket >= 0)
        close(socket);
}

bool SystemLog::send(int priority, const QByteArray &line)
{
    constexpr int maximumLength = 8192; // log daemons take no more as one message
    // The daemon adds the time.
    const QByteArray message = '<' + QByteArray::number(LOG_USER | priority) + '>'
        + QByteArray(program_invocation_short_name) + '[' + QByteArray::number(getpid())
        + "]: " + line.left(maximumLength);
    // A daemon that was restarted needs a new connection.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (socket < 0 && !connectSocket())
            return false;
        if (::send(socket, message.constData(), size_t(message.size()), MSG_NOSIGNAL) >= 0)
            return true;
        if (errno == EAGAIN)
            return false;
        close(socket);
        socket = -1;
    }
    return false;
}

bool SystemLog::connectSocket()
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, socketPath.constData(), sizeof address.sun_path);
    socket = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (connect(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0)
        return true;
    close(socket);
    socket = -1;
    return false;
}
