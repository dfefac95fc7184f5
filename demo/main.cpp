// The console on a simulated device.
#include "app/Session.h"
#include "demo/DemoDevice.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <optional>

namespace {

enum ExitStatus { Success, NoDevice, WrongUsage };

struct DemoOptions {
    QString stateDirectory; ///< empty: a temporary one
    int idleMs = SessionOptions().idleMs;
};

int failure(const QString &text, ExitStatus status)
{
    std::fprintf(stderr, "dravikon-demo: %s\n", text.toLocal8Bit().constData());
    return status;
}

// The exit status where no session is to follow.
std::optional<int> readOptions(int argc, char **argv, DemoOptions &options)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Opens the service console on a simulated device."));
    const QCommandLineOption state(QStringLiteral("state"),
        QStringLiteral("Keep the device's state in DIR and go on from there; without it the device "
                       "starts afresh and is forgotten at the end."),
        QStringLiteral("DIR"));
    const QCommandLineOption idle(QStringLiteral("idle"),
        QStringLiteral("End after MS milliseconds without a key (%1).").arg(options.idleMs),
        QStringLiteral("MS"), QString::number(options.idleMs));
    const QCommandLineOption help(QStringLiteral("help"), QStringLiteral("Print this text."));
    parser.addOptions({ state, idle, help });

    if (!parser.parse(QCoreApplication::arguments()))
        return failure(parser.errorText(), WrongUsage);
    if (!parser.positionalArguments().isEmpty())
        return failure(
            QStringLiteral("unexpected ") + parser.positionalArguments().first(), WrongUsage);
    if (parser.isSet(help)) {
        std::fputs(parser.helpText().toLocal8Bit().constData(), stdout);
        return Success;
    }
    options.idleMs = parser.value(idle).toInt();
    if (options.idleMs <= 0)
        return failure(QStringLiteral("--idle takes a number of milliseconds"), WrongUsage);
    options.stateDirectory = parser.value(state);
    if (parser.isSet(state) && options.stateDirectory.isEmpty())
        return failure(QStringLiteral("--state takes a directory"), WrongUsage);
    return std::nullopt;
}

int runOn(const QString &directory, int idleMs, char *program)
{
    if (!makeDemoDevice(directory))
        return failure(QStringLiteral("cannot make a device in ") + directory, NoDevice);
    SessionOptions session;
    session.paths.webRoot = QStringLiteral(DRAVIKON_DEMO_WEB_ROOT);
    session.paths.settingsScript = session.paths.webRoot + QLatin1String("/scripts/settings.js");
    session.paths.backendTool = demoBackendTool(directory);
    session.idleMs = idleMs;
    int argc = 1;
    char *argv[] = { program, nullptr };
    return runSession(argc, argv, session);
}

} // namespace

int main(int argc, char **argv)
{
    DemoOptions options;
    if (const std::optional<int> status = readOptions(argc, argv, options))
        return *status;
    if (!options.stateDirectory.isEmpty())
        return runOn(QDir(options.stateDirectory).absolutePath(), options.idleMs, argv[0]);

    const QTemporaryDir directory(QDir::tempPath() + QLatin1String("/dravikon-demo-XXXXXX"));
    if (!directory.isValid())
        return failure(QStringLiteral("cannot make a directory in ") + QDir::tempPath(), NoDevice);
    return runOn(directory.path(), options.idleMs, argv[0]);
}
