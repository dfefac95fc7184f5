// The checker of menu definitions, for those who write them.
#include "check/DeviceCheck.h"
#include "check/FileFault.h"
#include "check/Interruption.h"
#include "check/MenuCheck.h"
#include "check/ProgressLine.h"
#include "locale/CTranslationHandler.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <Version.h>

#include <cstdio>

namespace {

enum ExitStatus { Clean, HasProblems, CannotLoad };

const QString description = QStringLiteral(
    "Reports what is wrong with the menu definition of a truck controller's web "
    "interface,\none problem a line. Only --device runs the backend tool, and it writes "
    "nothing.\n\n"
    "Exit status: 0 no problem, 1 problems, 2 wrong usage or files that cannot be "
    "loaded.");

void print(std::FILE *file, const QString &text)
{
    std::fprintf(file, "%s\n", text.toLocal8Bit().constData());
}

void printLines(std::FILE *file, const QStringList &lines)
{
    for (const QString &line : lines)
        print(file, line);
    std::fflush(file);
}

int failure(const QString &text)
{
    print(stderr, QStringLiteral("dravikon-menu-check: ") + text);
    return CannotLoad;
}

// The whole menu with the device's values. Values that are missing are an error, as the printed
// menu is made to be compared with another.
int printRecord(LoadedMenu &menu, ToolCalls &calls, ProgressLine &progress)
{
    readDevice(menu, calls, DeviceExtent::Values);
    progress.clear();
    printLines(stdout, menuOutline(menu));
    const QStringList failed = failedCalls(calls);
    printLines(stderr, failed);
    return failed.isEmpty() ? Clean : HasProblems;
}

bool reportDevice(LoadedMenu &menu, ToolCalls &calls, ProgressLine &progress)
{
    readDevice(menu, calls, DeviceExtent::Everything);
    progress.clear();
    const QStringList problems = deviceProblems(menu, calls);
    printLines(stdout, problems);
    printLines(stderr, callSummary(calls));
    return !problems.isEmpty();
}

int check(const DevicePaths &paths, bool wantsDevice, bool wantsTree)
{
    const QString fault = fileFault(paths);
    if (!fault.isEmpty())
        return failure(QStringLiteral("cannot load ") + fault);
    CTranslationHandler::setInstanceRoot(paths.webRoot);
    ProgressLine progress;
    ToolCalls calls(
        paths.backendTool, [&progress](int number, int count, const QStringList &arguments) {
            progress.show(
                QStringLiteral("%1 of %2: ").arg(number).arg(count) + shownCall(arguments));
        });
    LoadedMenu menu(paths, [&calls](const QStringList &arguments) { return calls.run(arguments); });
    const bool hasMenu = !menu.root->children.empty();
    if (wantsDevice)
        killToolOnInterruption();
    if (wantsTree && hasMenu && wantsDevice)
        return printRecord(menu, calls, progress);
    if (wantsTree && hasMenu) {
        printLines(stdout, menuOutline(menu));
        return Clean;
    }
    const QStringList problems = menuProblems(menu);
    printLines(stdout, problems);
    const bool hasDeviceProblems = wantsDevice && hasMenu && reportDevice(menu, calls, progress);
    return problems.isEmpty() && !hasDeviceProblems ? Clean : HasProblems;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    const QCommandLineOption webRoot(QStringLiteral("web-root"),
        QStringLiteral("Folder of the web interface, with scripts/settings.js and locales/."),
        QStringLiteral("DIR"), DevicePaths().webRoot);
    const QCommandLineOption tree(QStringLiteral("tree"),
        QStringLiteral("Print the menu instead, everything opened and without values, with one "
                       "compartment and one meter, as with the electronic seal open. Status 0."));
    const QCommandLineOption device(QStringLiteral("device"),
        QStringLiteral("Read the device, too, and report which answers do not fit the definition. "
                       "With --tree print the device's menu with all values instead."));
    const QCommandLineOption tool(QStringLiteral("tool"),
        QStringLiteral("The backend tool that --device runs."), QStringLiteral("PATH"),
        DevicePaths().backendTool);
    const QCommandLineOption help(QStringLiteral("help"), QStringLiteral("Print this text."));
    const QCommandLineOption version(
        QStringLiteral("version"), QStringLiteral("Print the version."));
    parser.addOptions({ webRoot, tree, device, tool, help, version });

    if (!parser.parse(QCoreApplication::arguments()))
        return failure(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return failure(QStringLiteral("unexpected ") + parser.positionalArguments().first());
    if (parser.isSet(help)) {
        print(stdout, parser.helpText());
        return Clean;
    }
    if (parser.isSet(version)) {
        print(stdout, QStringLiteral("dravikon-menu-check ") + consoleVersion);
        return Clean;
    }
    if (parser.isSet(tool) && !parser.isSet(device))
        return failure(QStringLiteral("--tool is for --device"));
    DevicePaths paths { parser.value(webRoot) };
    paths.backendTool = QFileInfo(parser.value(tool)).absoluteFilePath();
    return check(paths, parser.isSet(device), parser.isSet(tree));
}
