#include "app/Session.h"

#include "app/MessageLog.h"
#include "app/SessionEnd.h"
#include "app/SignalHandlers.h"
#include "app/TerminalGui.h"
#include "app/TerminalLine.h"
#include "app/TerminalReader.h"
#include "locale/CTranslationHandler.h"
#include "platform/StandardDescriptors.h"

#include <QCoreApplication>

#include <Version.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

constexpr int noSession = -1;
constexpr int notPrinted = 2;
constexpr int exitToShellStatus = 80;
constexpr char usage[] = "\n"
                         "Dravikon usage:\n"
                         "==========================\n"
                         "    -h or when wrong parameter this usage\n"
                         "    --version version of this binary\n"
                         "\n";

// Returns the exit status.
int print(const QByteArray &text)
{
    if (std::fputs(text.constData(), stdout) >= 0 && std::fflush(stdout) == 0)
        return noSession;
    qCritical("The text cannot be written: %s", std::strerror(errno));
    return notPrinted;
}

int runConsole(const SessionOptions &options)
{
    CTranslationHandler::setInstanceRoot(options.paths.webRoot);
    TerminalLine line;
    auto gui = std::make_unique<TerminalGui>(options.paths, line, options.runTool);
    auto reader = std::make_unique<TerminalReader>(options.idleMs, gui->shownScreen());
    installSessionHandlers(*gui);
    reader->init();
    qRegisterMetaType<Qt::Key>("Qt::Key");
    QObject::connect(
        reader.get(), &TerminalReader::newKeyEvent, gui.get(), &TerminalGui::processKeyEvent);
    QObject::connect(reader.get(), &TerminalReader::timeout, gui.get(), &TerminalGui::closeGui);
    gui->initTerminal();
    // exec() returns an error if quit() arrives while it starts; the session still ended well.
    QCoreApplication::exec();
    endSession();
    reader.reset();
    const bool toShell = gui->exitToShell();
    gui.reset();
    concludeSession();
    return toShell ? exitToShellStatus : EXIT_SUCCESS;
}

} // namespace

int runSession(int &argc, char **argv, const SessionOptions &options)
{
    openStandardDescriptors();
    installEndingHandlers();
    const QCoreApplication application(argc, argv);
    installMessageLog();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2)
        return runConsole(options);
    if (arguments.at(1) != QLatin1String("--version"))
        return print(usage);
    return print("Tavrolink-Dravikon-Version: " + QByteArray(consoleVersion.data()) + '\n');
}
