#include "app/TerminalReader.h"

#include "app/KeyDecoder.h"
#include "app/SessionEnd.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include <cerrno>
#include <cstdio>

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

TerminalReader::TerminalReader(int idleMs, Screen &screen)
    : stdinNotifier(new QSocketNotifier(fileno(stdin), QSocketNotifier::Read, this))
    , idleMs(idleMs)
    , screen(screen)
{
    // Bytes that were read ahead would not make standard input readable again.
    static char buffer[1];
    setvbuf(stdin, buffer, _IOFBF, sizeof buffer);
    pthread_sigmask(SIG_SETMASK, nullptr, &waitMask);
    sigdelset(&waitMask, SIGWINCH);
    connect(&idleTimer, &QTimer::timeout, this, &TerminalReader::timeout);
    idleTimer.setTimerType(Qt::PreciseTimer);
    idleTimer.start(idleMs);
    startIdleTime(idleMs);
    sinceCount.start();
}

void TerminalReader::init()
{
    connect(stdinNotifier, SIGNAL(activated(int)), SLOT(readChar(int)));
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
        &TerminalReader::waitInLoop);
}

void TerminalReader::readChar(int)
{
    idleTimer.start(idleMs);
    startIdleTime(idleMs);
    const std::optional<int> key = readKey();
    if (!key)
        return;
    if (*key == EOF)
        stdinNotifier->setEnabled(false);
    emit newKeyEvent(static_cast<Qt::Key>(*key));
}

// The event loop waits here, because it allocates memory right before and after its own wait.
void TerminalReader::waitInLoop()
{
    bool isOver = false;
    while (!isOver && !isSessionEnding())
        isOver = waitForInput(idleTimer.remainingTime());
    // quit() before exec() has no effect, so an earlier SIGINT is acted on here.
    if (isSessionEnding())
        QCoreApplication::quit();
}

// Waits until standard input is readable or `limitMs` is over, without limit if that is negative.
// False when it must be called again: a signal came, or it is time to look at the line.
bool TerminalReader::waitForInput(int limitMs)
{
    const bool isBurst = hasInput();
    const int frameMs = screen.beforeWait(isBurst);
    int waitMs = isBurst ? 0 : frameMs;
    const bool isWholeWait = waitMs < 0 || (limitMs >= 0 && limitMs <= waitMs);
    if (isWholeWait)
        waitMs = limitMs;
    pollfd input = { STDIN_FILENO, POLLIN, 0 };
    const timespec timeout = { waitMs / 1000, waitMs % 1000 * 1000000L };
    const int result = ppoll(
        &input, stdinNotifier->isEnabled() ? 1 : 0, waitMs < 0 ? nullptr : &timeout, &waitMask);
    arrivedBytes = 0; // the terminal discards its input on Ctrl-Z, so count again
    if (!isBurst)
        screen.afterWait();
    return result > 0 || (result == 0 && isWholeWait);
}

// True when there are keys to read. They are counted again, as they also come while the tool runs.
bool TerminalReader::hasInput()
{
    constexpr int freshMs = 5;
    if (arrivedBytes <= 0 && sinceCount.hasExpired(freshMs))
        countInput();
    return arrivedBytes > 0;
}

void TerminalReader::countInput()
{
    ioctl(STDIN_FILENO, FIONREAD, &arrivedBytes);
    sinceCount.start();
}

// Nothing when the session is ending.
std::optional<int> TerminalReader::readKey()
{
    KeyDecoder decoder;
    std::optional<int> key;
    while (!key) {
        const std::optional<int> byte = readByte();
        if (!byte)
            return std::nullopt;
        key = decoder.feed(*byte);
    }
    return key;
}

// The next byte or EOF; nothing when the session is ending.
std::optional<int> TerminalReader::readByte()
{
    while (!isSessionEnding()) {
        // A read that blocks would keep SIGWINCH blocked.
        if (arrivedBytes <= 0)
            countInput();
        if (arrivedBytes <= 0 && !waitForInput(-1))
            continue;
        --arrivedBytes;
        errno = 0;
        const int byte = getc(stdin);
        if (byte != EOF || (errno != EINTR && errno != EAGAIN))
            return byte;
        clearerr(stdin);
    }
    return std::nullopt;
}
