// The checker of menu definitions, for those who write them.
#include "check/CommandLine.h"
#include "check/DeviceCheck.h"
#include "check/FileFindings.h"
#include "check/Interruption.h"
#include "check/Layout.h"
#include "check/MenuCheck.h"
#include "check/OwnProcess.h"
#include "check/ProgressLine.h"
#include "check/WriteBack.h"
#include "locale/CTranslationHandler.h"
#include "platform/StandardDescriptors.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <csignal>

namespace {

enum CheckStatus { Clean, HasProblems, CannotLoad, EngineCrashed };
static_assert(CannotLoad == wrongUsage, "as the help text says");

const QString description = QStringLiteral(
    "Reports what is wrong with the menu definition of a truck controller's web "
    "interface,\none problem a line. Only --device and --write-back run the backend tool, and "
    "--device\nwrites nothing.\n\n"
    "Exit status: 0 no problem, 1 problems, 2 wrong usage, a script that cannot be "
    "read or\noutput that cannot be written, 3 the script engine crashed on the definition, or "
    "its\nscript did not end.");

void addOptions(QCommandLineParser &parser)
{
    addOption(parser, "web-root",
        "Folder of the web interface, with scripts/settings.js and locales/.", "DIR",
        DevicePaths().webRoot);
    addOption(parser, "tree",
        "Print the menu instead, everything opened and without values, with one compartment and "
        "one meter, as with the electronic seal open. Status 0.");
    addOption(parser, "device",
        "Read the device, too, and report which answers do not fit the definition. With --tree "
        "print the device's menu with all values instead.");
    addOption(parser, "tool", "The backend tool to run.", "PATH", DevicePaths().backendTool);
    addOption(parser, "trace", "Write each run of the tool to FILE, a JSON object a line.", "FILE");
    addOption(parser, "layout",
        "Print the calls that the console can make, with a row for each position of their values. "
        "No tool is run. Status 0.");
    addOption(parser, "write-back",
        "For a test bench: write each screen's values back as they are read, and report which do "
        "not stay.");
}

void print(std::FILE *file, const QStringList &lines)
{
    for (const QString &line : lines)
        print(file, line);
}

CheckStatus statusOf(const QStringList &problems)
{
    return problems.isEmpty() ? Clean : HasProblems;
}

void showCall(int number, const QStringList &arguments)
{
    showProgress(QStringLiteral("%1: %2").arg(number).arg(shownCall(arguments)));
}

void read(LoadedMenu &menu, ToolCalls &calls, DeviceExtent extent)
{
    takeTime();
    killToolOnInterruption();
    readDevice(menu, calls, extent);
    clearProgress();
}

// Values that are missing are an error, as the printed menu is made to be compared with another.
CheckStatus printMenu(LoadedMenu &menu, ToolCalls &calls, bool isOfDevice)
{
    if (isOfDevice)
        read(menu, calls, DeviceExtent::Values);
    print(stdout, menuOutline(menu));
    const QStringList failed = isOfDevice ? failedCalls(calls) : QStringList();
    print(stderr, failed);
    return statusOf(failed);
}

CheckStatus report(LoadedMenu &menu, ToolCalls &calls, bool isOfDevice)
{
    const QStringList problems = menuProblems(menu);
    print(stdout, problems);
    if (!isOfDevice)
        return statusOf(problems);
    read(menu, calls, DeviceExtent::Everything);
    const QStringList ofDevice = deviceProblems(menu, calls);
    print(stdout, ofDevice);
    print(stderr, callSummary(calls));
    return statusOf(problems + ofDevice);
}

int reportWriteBack(const DevicePaths &paths, ToolCalls &calls)
{
    if (!calls.fault().isEmpty())
        return failure(
            CannotLoad, calls.tool + QStringLiteral(" cannot be started: ") + calls.fault());
    takeTime();
    killToolOnInterruption();
    const WriteBackReport report = writeBack(paths, calls.trace, showCall);
    clearProgress();
    print(stdout, report.problems);
    print(stderr, report.summary);
    return statusOf(report.problems);
}

struct Wishes {
    bool device;
    bool tree;
    bool layout;
    bool writeBack;
    QString trace;
};

int check(const DevicePaths &paths, const Wishes &wishes)
{
    const QString fault = unreadableScript(paths);
    if (!fault.isEmpty())
        return failure(CannotLoad, QStringLiteral("cannot load ") + fault);
    CTranslationHandler::setInstanceRoot(paths.webRoot);
    ToolCalls calls(paths.backendTool, showCall);
    const QString problem = wishes.trace.isEmpty() ? QString() : calls.trace.open(wishes.trace);
    if (!problem.isEmpty())
        return failure(wrongUsage, problem);
    LoadedMenu menu(paths, [&calls](const QStringList &arguments) { return calls.run(arguments); });
    if (menu.root->children.empty())
        return report(menu, calls, false);
    if (wishes.writeBack)
        return reportWriteBack(paths, calls);
    if (!wishes.tree && !wishes.layout)
        return report(menu, calls, wishes.device);
    // Without the table the menu has keys instead of labels.
    const QString table = translationTable(paths.webRoot);
    for (const Finding &finding : tableFindings(table))
        print(stderr, table + QStringLiteral(": ") + finding.text);
    if (wishes.tree)
        return printMenu(menu, calls, wishes.device);
    print(stdout, menuLayout(paths));
    return Clean;
}

int checkInOwnProcess(const DevicePaths &paths, const Wishes &wishes)
{
    const WorkEnd end = doInOwnProcess([&] { return statusOfOutput(check(paths, wishes)); });
    if (end.hasCrashed())
        return failure(EngineCrashed, crashText(paths.settingsScript, end));
    if (end.status < 0)
        std::raise(end.signal);
    return end.status;
}

// What is wrong with options that do not go together; empty if nothing is.
QString faultOf(const Wishes &wishes, bool hasTool)
{
    if (wishes.layout + wishes.writeBack + (wishes.device || wishes.tree) > 1)
        return QStringLiteral("--layout and --write-back go with no other report");
    if (wishes.writeBack && !hasTool)
        return QStringLiteral("--write-back writes, so name the tool with --tool");
    const bool runsTool = wishes.device || wishes.writeBack;
    if (hasTool && !runsTool)
        return QStringLiteral("--tool is for --device and --write-back");
    if (!wishes.trace.isEmpty() && !runsTool)
        return QStringLiteral("--trace is for --device and --write-back");
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    openStandardDescriptors();
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(printMessage);
    QCoreApplication::setApplicationName(QStringLiteral("dravikon-menu-check"));
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    addOptions(parser);
    if (const std::optional<int> status = parseCommandLine(parser))
        return *status;
    const auto isSet = [&parser](const char *name) { return parser.isSet(QLatin1String(name)); };
    const QString trace = parser.value(QStringLiteral("trace"));
    const Wishes wishes { isSet("device"), isSet("tree"), isSet("layout"), isSet("write-back"),
        trace };
    const QString fault = faultOf(wishes, isSet("tool"));
    if (!fault.isEmpty())
        return failure(wrongUsage, fault);
    DevicePaths paths { parser.value(QStringLiteral("web-root")) };
    paths.backendTool = QFileInfo(parser.value(QStringLiteral("tool"))).absoluteFilePath();
    return checkInOwnProcess(paths, wishes);
}
