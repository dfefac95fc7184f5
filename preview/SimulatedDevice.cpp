#include "preview/SimulatedDevice.h"

#include "check/QuietMessages.h"
#include "preview/DeviceState.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString toolName = QStringLiteral("DBusController");

// A script engine has a thread, which must not take signals that are for the session. Meanwhile
// Ctrl-C ends `work`, for instance a script without an end, and this program cleans up.
template <typename Work> bool inOwnProcess(const Work &work)
{
    const pid_t process = fork();
    if (process == 0)
        _exit(work() ? 0 : 1);
    auto *const formerAction = std::signal(SIGINT, SIG_IGN);
    int status = 1;
    while (process > 0 && waitpid(process, &status, 0) < 0 && errno == EINTR) { }
    std::signal(SIGINT, formerAction);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

QString makeSimulatedDevice(const QString &directory, const QString &program,
    const DevicePaths &paths, const QString &values, const DeviceWishes &wishes)
{
    const QString tool = simulatedTool(directory);
    const QString state = stateFile(directory);
    const bool isKnown = QFile::exists(state);
    const QVariant known = loadState(isKnown ? state : values);
    if (isKnown && !known.isValid())
        return state + QStringLiteral(" is no JSON; correct or remove it");
    if (QFileInfo(tool).isSymLink())
        QFile::remove(tool);
    if (!QDir().mkpath(directory) || !QFile::link(program, tool))
        return QStringLiteral("cannot make ") + tool;
    const bool isMade = inOwnProcess([&] {
        int argc = 0;
        const QCoreApplication application(argc, nullptr);
        const QuietMessages quiet;
        return saveState(state, deviceFromMenu(paths, known, wishes));
    });
    return isMade ? QString()
                  : state
            + QStringLiteral(" was not made: cannot write it, or the settings script "
                             "was interrupted");
}

QString simulatedTool(const QString &directory)
{
    return directory + QLatin1Char('/') + toolName;
}

bool isSimulatedTool(const char *program)
{
    return QFileInfo(QFile::decodeName(program)).fileName() == toolName;
}
