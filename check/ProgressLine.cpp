#include "check/ProgressLine.h"

#include "render/ForeignText.h"
#include "render/ViewState.h"

#include <csignal>
#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr char clear[] = "\r\033[K";
volatile std::sig_atomic_t isShown = 0;

} // namespace

void showProgress(const QString &text)
{
    if (isatty(STDERR_FILENO) == 0)
        return;
    winsize size = {};
    ioctl(STDERR_FILENO, TIOCGWINSZ, &size);
    // Leaves room for the terminal's "^C" and the cursor, which must not go on to the next line.
    const int width = (size.ws_col > 0 ? size.ws_col : standardColumns) - 3;
    isShown = 1;
    std::fprintf(stderr, "%s%s", clear, printable(text).left(width).toLocal8Bit().constData());
    std::fflush(stderr);
}

void clearProgress() noexcept
{
    if (isShown != 0 && write(STDERR_FILENO, clear, sizeof clear - 1) > 0)
        isShown = 0;
}
