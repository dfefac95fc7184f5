#include "preview/SimulatedDevice.h"

#include "check/QuietMessages.h"
#include "preview/DeviceState.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <csignal>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString toolName = QStringLiteral("DBusController");

// The script engine's thread must not be one of the session's process. A script may run without
// end, so the process ends with its parent.
template <typename Work> bool inOwnProcess(const Work &work)
{
    std::signal(SIGCHLD, SIG_DFL); // or it may be ignored, and the exit status is lost
    const pid_t parent = getpid();
    const pid_t process = fork();
    if (process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        _exit(getppid() == parent && work() ? 0 : 1);
    }
    int status = 1;
    while (process > 0 && waitpid(process, &status, 0) < 0 && errno == EINTR) { }
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
    return isMade
        ? QString()
        : state + QStringLiteral(" was not made: cannot write it, or the settings script crashed");
}

QString simulatedTool(const QString &directory)
{
    return directory + QLatin1Char('/') + toolName;
}

bool isSimulatedTool(const char *program)
{
    return QFileInfo(QFile::decodeName(program)).fileName() == toolName;
}
