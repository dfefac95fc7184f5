#include "app/TerminalLine.h"

#include <cerrno>
#include <ctime>

#include <asm/termbits.h> // numbers for speeds; not together with <termios.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

void TerminalLine::write(const QByteArray &bytes)
{
    const char *next = bytes.constData();
    const char *const end = next + bytes.size();
    while (next < end) {
        const ssize_t written = ::write(STDOUT_FILENO, next, size_t(end - next));
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

int TerminalLine::queuedBytes() const
{
    int queued = 0;
    return ioctl(STDOUT_FILENO, TIOCOUTQ, &queued) == 0 ? queued : 0;
}

int TerminalLine::bytesPerSecond() const
{
    constexpr int bitsPerByte = 10; // with start and stop bit
    constexpr int usualSpeed = 9600;
    struct termios2 attributes = {};
    const bool isKnown =
        ioctl(STDOUT_FILENO, TCGETS2, &attributes) == 0 && attributes.c_ospeed >= bitsPerByte;
    return (isKnown ? int(attributes.c_ospeed) : usualSpeed) / bitsPerByte;
}

qint64 TerminalLine::milliseconds() const
{
    timespec time = {};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}
