#include "check/ProgressLine.h"

#include "render/ForeignText.h"

#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

namespace {

int terminalWidth()
{
    constexpr int usualWidth = 80;
    winsize size = {};
    const bool isKnown = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : usualWidth;
}

} // namespace

ProgressLine::ProgressLine()
    : isTerminal(isatty(STDERR_FILENO) != 0)
{
}

void ProgressLine::show(const QString &text)
{
    if (!isTerminal)
        return;
    // In the last column the cursor would go on to the next line.
    const QString shown = printable(text).left(terminalWidth() - 1);
    std::fprintf(stderr, "\r\033[K%s", shown.toLocal8Bit().constData());
    std::fflush(stderr);
}
