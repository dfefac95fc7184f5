#include "platform/StandardDescriptors.h"

#include <fcntl.h>
#include <unistd.h>

void openStandardDescriptors() noexcept
{
    int lowestFree = 0;
    while (lowestFree >= 0 && lowestFree <= STDERR_FILENO)
        lowestFree = open("/dev/null", O_RDONLY);
    close(lowestFree);
}
