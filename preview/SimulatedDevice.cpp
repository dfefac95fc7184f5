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

bool makeSimulatedDevice(const QString &directory, const QString &program, const DevicePaths &paths,
    const QString &values, const DeviceWishes &wishes)
{
    const QString tool = simulatedTool(directory);
    if (!QDir().mkpath(directory))
        return false;
    QFile::remove(tool);
    return QFile::link(program, tool) && inOwnProcess([&] {
        int argc = 0;
        const QCoreApplication application(argc, nullptr);
        const QuietMessages quiet;
        const QVariant known =
            loadState(QFile::exists(stateFile(directory)) ? stateFile(directory) : values);
        return saveState(stateFile(directory), deviceFromMenu(paths, known, wishes));
    });
}

QString simulatedTool(const QString &directory)
{
    return directory + QLatin1Char('/') + toolName;
}

bool isSimulatedTool(const char *program)
{
    return QFileInfo(QFile::decodeName(program)).fileName() == toolName;
}
