#include "platform/WriteAtOnce.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

size_t writeAtOnce(int descriptor, const char *bytes, size_t size) noexcept
{
    // The flag is shared with other processes on the same file, so it is set for this write only.
    const int flags = fcntl(descriptor, F_GETFL);
    fcntl(descriptor, F_SETFL, flags | O_NONBLOCK);
    size_t done = 0;
    while (done < size) {
        const ssize_t written = write(descriptor, bytes + done, size - done);
        if (written > 0)
            done += size_t(written);
        else if (written == 0 || errno != EINTR)
            break;
    }
    fcntl(descriptor, F_SETFL, flags);
    return done;
}
