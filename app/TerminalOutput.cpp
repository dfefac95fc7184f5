#include "app/TerminalOutput.h"

#include <cerrno>

#include <poll.h>
#include <unistd.h>

void writeToTerminal(const QByteArray &bytes)
{
    const char *next = bytes.constData();
    const char *const end = next + bytes.size();
    while (next < end) {
        const ssize_t written = write(STDOUT_FILENO, next, size_t(end - next));
        if (written >= 0) {
            next += written;
        } else if (errno == EAGAIN) {
            pollfd writable = { STDOUT_FILENO, POLLOUT, 0 };
            poll(&writable, 1, -1);
        } else if (errno != EINTR) {
            break;
        }
    }
}
