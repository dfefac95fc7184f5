// The console on a simulated device.
#include "app/Session.h"
#include "demo/DemoDevice.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstring>

namespace {

constexpr const char *usage =
    "Usage: dravikon-demo [--state DIR] [--idle MS]\n"
    "\n"
    "Opens the service console on a simulated device.\n"
    "\n"
    "  --state DIR  keep the device's state in DIR and go on from there; without it\n"
    "               the device starts afresh and is forgotten at the end\n"
    "  --idle MS    end after MS milliseconds without a key (180000)\n"
    "  --help       this text\n";

struct DemoOptions {
    QString stateDirectory; ///< empty: a temporary one
    int idleMs = SessionOptions().idleMs;
    bool help = false;
};

bool readOptions(int argc, char **argv, DemoOptions &options)
{
    for (int index = 1; index < argc; ++index) {
        const char *const option = argv[index];
        const char *const value = index + 1 < argc ? argv[index + 1] : "";
        bool ok = true;
        if (std::strcmp(option, "--help") == 0) {
            options.help = true;
            continue;
        }
        if (std::strcmp(option, "--state") == 0) {
            options.stateDirectory = QFile::decodeName(value);
            ok = !options.stateDirectory.isEmpty();
        } else if (std::strcmp(option, "--idle") == 0) {
            options.idleMs = QByteArray(value).toInt(&ok);
            ok = ok && options.idleMs > 0;
        } else {
            std::fprintf(stderr, "dravikon-demo: unknown option %s\n", option);
            return false;
        }
        if (!ok) {
            std::fprintf(stderr, "dravikon-demo: %s has no usable value\n", option);
            return false;
        }
        ++index;
    }
    return true;
}

int runOn(const QString &directory, int idleMs, char *program)
{
    if (!makeDemoDevice(directory)) {
        std::fprintf(stderr, "dravikon-demo: cannot make a device in %s\n",
            QFile::encodeName(directory).constData());
        return 1;
    }
    SessionOptions session;
    session.paths = { QStringLiteral(DRAVIKON_DEMO_WEB_ROOT) };
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
    if (!readOptions(argc, argv, options)) {
        std::fputs(usage, stderr);
        return 2;
    }
    if (options.help) {
        std::fputs(usage, stdout);
        return 0;
    }
    if (!options.stateDirectory.isEmpty())
        return runOn(QDir(options.stateDirectory).absolutePath(), options.idleMs, argv[0]);

    const QTemporaryDir directory(QDir::tempPath() + QLatin1String("/dravikon-demo-XXXXXX"));
    if (!directory.isValid()) {
        std::fprintf(stderr, "dravikon-demo: cannot make a temporary directory in %s\n",
            QFile::encodeName(QDir::tempPath()).constData());
        return 1;
    }
    return runOn(directory.path(), options.idleMs, argv[0]);
}
