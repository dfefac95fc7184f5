#include "preview/DisposableDirectory.h"

#include "platform/SignalBlocker.h"

#include <QTemporaryDir>

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

QString makeDisposableDirectory(const QString &pathTemplate)
{
    // The signals stay blocked in the process that removes the directory.
    const SignalBlocker blocker(asynchronousSignals());
    QTemporaryDir directory(pathTemplate);
    std::array<int, 2> lifeline = {};
    if (!directory.isValid() || pipe2(lifeline.data(), O_CLOEXEC) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0) {
        // Out of reach of the terminal and of the shell's `kill %1`. A grandchild, so that the only
        // children of a session are its tools.
        setsid();
        if (fork() != 0)
            _exit(0);
        close(lifeline[1]);
        char nothing = 0;
        while (read(lifeline[0], &nothing, 1) < 0 && errno == EINTR) { }
        directory.remove();
        _exit(0);
    }
    close(lifeline[0]);
    while (child > 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) { }
    directory.setAutoRemove(child < 0);
    return child < 0 ? QString() : directory.path();
}
