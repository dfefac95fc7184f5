#include "check/ProgressLine.h"

#include "render/ForeignText.h"
#include "render/ViewState.h"

#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

void showProgress(const QString &text)
{
    if (isatty(STDERR_FILENO) == 0)
        return;
    winsize size = {};
    ioctl(STDERR_FILENO, TIOCGWINSZ, &size);
    // In the last column the cursor would go on to the next line.
    const int width = (size.ws_col > 0 ? size.ws_col : standardColumns) - 1;
    std::fprintf(stderr, "\r\033[K%s", printable(text).left(width).toLocal8Bit().constData());
    std::fflush(stderr);
}
