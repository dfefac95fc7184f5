#include "preview/SimulatedDevice.h"

#include "check/OwnProcess.h"
#include "check/QuietMessages.h"
#include "preview/DeviceState.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

const QString toolName = QStringLiteral("DBusController");

} // namespace

QString makeSimulatedDevice(const QString &directory, const QString &program,
    const DevicePaths &paths, const QString &values, const DeviceWishes &wishes)
{
    const QString tool = simulatedTool(directory);
    const QString state = stateFile(directory);
    const bool isMade = QDir().mkpath(directory);
    const StateLock lock(directory);
    const bool isKnown = QFile::exists(state);
    const QString source = isKnown ? state : values;
    const auto known = source.isEmpty() ? std::nullopt : loadState(source);
    if (isKnown && !known)
        return state + QStringLiteral(" is no JSON object; correct or remove it");
    if (QFileInfo(tool).isSymLink())
        QFile::remove(tool);
    if (!isMade || !QFile::link(program, tool))
        return QStringLiteral("cannot make ") + tool;
    // The script engine leaves a thread behind, which would take signals of the session.
    const WorkEnd making = doInOwnProcess([&] {
        int argc = 0;
        const QCoreApplication application(argc, nullptr);
        const QuietMessages quiet;
        const DeviceState made = deviceFromMenu(paths, known.value_or(DeviceState()), wishes);
        return saveState(state, made) ? 0 : 1;
    });
    if (making.hasCrashed())
        return crashText(paths.settingsScript, making);
    return making.status == 0 ? QString() : state + QStringLiteral(" cannot be written");
}

QString simulatedTool(const QString &directory)
{
    return directory + QLatin1Char('/') + toolName;
}

bool isSimulatedTool(const char *program)
{
    return QFileInfo(QFile::decodeName(program)).fileName() == toolName;
}
