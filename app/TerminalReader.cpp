#include "app/TerminalReader.h"

#include "app/KeyDecoder.h"
#include "app/ResizeSignal.h"
#include "app/SignalHandlers.h"

#include <cerrno>
#include <cstdio>

TerminalReader::TerminalReader(int idleMs)
    : stdinNotifier(new QSocketNotifier(fileno(stdin), QSocketNotifier::Read, this))
    , idleMs(idleMs)
{
    // With a buffer of its own, reading allocates nothing that a resize could interrupt.
    static char buffer[BUFSIZ];
    setvbuf(stdin, buffer, _IOFBF, sizeof buffer);
    connect(&idleTimer, &QTimer::timeout, this, &TerminalReader::timeout);
    idleTimer.setTimerType(Qt::PreciseTimer);
    idleTimer.start(idleMs);
}

void TerminalReader::init()
{
    connect(stdinNotifier, SIGNAL(activated(int)), SLOT(readChar(int)));
}

void TerminalReader::readChar(int)
{
    const ResizeSignal::Hold hold;
    idleTimer.start(idleMs);
    const std::optional<int> key = readKey();
    if (!key)
        return;
    if (*key == EOF)
        stdinNotifier->setEnabled(false);
    emit newKeyEvent(static_cast<Qt::Key>(*key));
}

// Nothing when the session is ending.
std::optional<int> TerminalReader::readKey()
{
    const ResizeSignal::Window window;
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
    for (;;) {
        if (isSessionEnding())
            return std::nullopt;
        errno = 0;
        const int byte = getc(stdin);
        if (byte != EOF || errno != EINTR)
            return byte;
        clearerr(stdin);
    }
}
