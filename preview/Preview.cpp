#include "preview/Preview.h"

#include "app/Session.h"
#include "check/CallTrace.h"
#include "check/CommandLine.h"
#include "check/FileFindings.h"
#include "check/MenuCheck.h"
#include "check/OwnProcess.h"
#include "check/QuietMessages.h"
#include "check/ToolFault.h"
#include "platform/StandardDescriptors.h"
#include "preview/DisposableDirectory.h"
#include "preview/SimulatedDevice.h"
#include "preview/SimulatedTool.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <csignal>
#include <limits>
#include <optional>

namespace {

constexpr int noDevice = 1;

struct PreviewOptions {
    QString webRoot;
    QString values; ///< file with values to start from; empty for none
    QString stateDirectory; ///< empty: a temporary one
    CallTrace trace;
    QString tool; ///< empty: that of the simulated device
    DeviceWishes wishes;
    int idleMs = SessionOptions().idleMs;
};

const QString description = QStringLiteral(
    "Opens the console on the menu definition of a web interface, with a simulated device\n"
    "that is made from the definition. After the session reports on standard error what is\n"
    "wrong with the definition, as dravikon-menu-check does.");

void addOptions(QCommandLineParser &parser)
{
    addOption(parser, "web-root",
        "Folder of the web interface, with scripts/settings.js and locales/.", "DIR");
    addOption(
        parser, "compartments", "Number of compartments, 3 unless the state has another.", "N");
    addOption(parser, "meters", "Number of meters, 2 unless the state has another.", "N");
    addOption(parser, "seal",
        "The electronic seal, open or closed; closed unless the state has it open.", "SEAL");
    addOption(parser, "state",
        "Keep the device's state in DIR and continue from there next time; without it each "
        "session starts with a fresh device.",
        "DIR");
    addOption(parser, "idle", "End after MS milliseconds without a key (default 180000).", "MS");
    addOption(parser, "trace", "Write each run of the backend tool to FILE, a JSON object a line.",
        "FILE");
    addOption(
        parser, "tool", "Run FILE as the backend tool; there is no simulated device then.", "FILE");
}

// Empty when the option is not given.
QString givenPath(const QCommandLineParser &parser, const char *option)
{
    const QString path = parser.value(QLatin1String(option));
    return path.isEmpty() ? QString() : QDir(path).absolutePath();
}

// These store the value of an option that is given. They return an error message, empty on success.

QString takeNumber(const QCommandLineParser &parser, const char *name, int lowest, int highest,
    std::optional<int> &number)
{
    if (!parser.isSet(QLatin1String(name)))
        return {};
    bool isNumber = false;
    number = parser.value(QLatin1String(name)).toInt(&isNumber);
    if (isNumber && *number >= lowest && *number <= highest)
        return {};
    return QStringLiteral("--%1 takes a number from %2 to %3")
        .arg(QLatin1String(name))
        .arg(lowest)
        .arg(highest);
}

QString takeSeal(const QCommandLineParser &parser, std::optional<bool> &isOpen)
{
    const QString seal = parser.value(QStringLiteral("seal"));
    const bool isSet = parser.isSet(QStringLiteral("seal"));
    if (isSet)
        isOpen = seal == QLatin1String("open");
    return !isSet || *isOpen || seal == QLatin1String("closed")
        ? QString()
        : QStringLiteral("--seal is open or closed");
}

// Returns an error message, empty on success.
QString takeOptions(const QCommandLineParser &parser, PreviewOptions &options)
{
    std::optional<int> idleMs;
    for (const QString &problem :
        { takeNumber(parser, "compartments", 0, 999, options.wishes.compartments),
            takeNumber(parser, "meters", 0, 999, options.wishes.meters),
            takeNumber(parser, "idle", 1, std::numeric_limits<int>::max(), idleMs),
            takeSeal(parser, options.wishes.isSealOpen) }) {
        if (!problem.isEmpty())
            return problem;
    }
    options.webRoot = givenPath(parser, "web-root");
    options.stateDirectory = givenPath(parser, "state");
    options.tool = givenPath(parser, "tool");
    options.idleMs = idleMs.value_or(options.idleMs);
    const QString fault = options.tool.isEmpty() ? QString() : toolFault(options.tool);
    if (!fault.isEmpty())
        return options.tool + QStringLiteral(" cannot be started: ") + fault;
    const QString trace = givenPath(parser, "trace");
    return trace.isEmpty() ? QString() : options.trace.open(trace);
}

// Returns an exit status if the program is to end without a session.
std::optional<int> readCommandLine(int argc, char **argv, PreviewOptions &options)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    addOptions(parser);
    if (const std::optional<int> status = parseCommandLine(parser))
        return *status;
    const QString problem = takeOptions(parser, options);
    if (!problem.isEmpty())
        return failure(wrongUsage, problem);
    return std::nullopt;
}

// The path by which this program was started. Programs such as luit start others by a name without
// the directory.
QString ownPath(const char *program)
{
    const QString name = QFile::decodeName(program);
    if (name.contains(QLatin1Char('/')))
        return QFileInfo(name).absoluteFilePath();
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? QFile::symLinkTarget(QStringLiteral("/proc/self/exe")) : found;
}

int reportProblems(const DevicePaths &paths)
{
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    const QString fault = unreadableScript(paths);
    if (!fault.isEmpty())
        return statusOfOutput(failure(0, QStringLiteral("cannot load ") + fault));
    const QuietMessages quiet;
    LoadedMenu menu(paths);
    for (const QString &problem : menuProblems(menu))
        print(stderr, problem);
    return statusOfOutput(0);
}

int runOn(const QString &tool, PreviewOptions &options, char *program)
{
    SessionOptions session;
    session.paths = { options.webRoot };
    session.paths.backendTool = tool;
    session.idleMs = options.idleMs;
    if (options.trace.isOpen()) {
        session.runTool = [&](const QStringList &arguments) {
            return options.trace.run(tool, arguments).output;
        };
    }
    int argc = 1;
    char *argv[] = { program, nullptr };
    const int status = runSession(argc, argv, session);
    // The session leaves a handler that ignores SIGINT, but Ctrl-C is to end the report.
    std::signal(SIGINT, SIG_DFL);
    const WorkEnd report = doInOwnProcess([&] { return reportProblems(session.paths); });
    if (report.hasCrashed())
        failure(0, crashText(session.paths.settingsScript, report));
    return report.status == outputLost ? outputLost : statusOfOutput(status);
}

int runOnSimulatedDevice(const QString &directory, PreviewOptions &options, char *program)
{
    const QString problem = makeSimulatedDevice(
        directory, ownPath(program), { options.webRoot }, options.values, options.wishes);
    if (!problem.isEmpty())
        return failure(noDevice, problem);
    return runOn(simulatedTool(directory), options, program);
}

} // namespace

int runPreview(int argc, char **argv, const PreviewDefaults &defaults)
{
    openStandardDescriptors();
    if (isSimulatedTool(argv[0]))
        return runSimulatedTool(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("dravikon-preview"));
    PreviewOptions options;
    if (const std::optional<int> status = readCommandLine(argc, argv, options))
        return *status;
    if (options.webRoot.isEmpty()) {
        options.webRoot = defaults.webRoot;
        options.values = defaults.values;
    }
    if (!options.tool.isEmpty())
        return runOn(options.tool, options, argv[0]);
    if (!options.stateDirectory.isEmpty())
        return runOnSimulatedDevice(options.stateDirectory, options, argv[0]);
    const QString directory =
        makeDisposableDirectory(QDir::tempPath() + QLatin1String("/dravikon-preview-XXXXXX"));
    if (directory.isEmpty())
        return failure(noDevice, QStringLiteral("cannot make a directory in ") + QDir::tempPath());
    return runOnSimulatedDevice(directory, options, argv[0]);
}
