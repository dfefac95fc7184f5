#include "demo/DemoDevice.h"

#include "demo/DeviceState.h"

#include <QDir>
#include <QFile>

bool makeDemoDevice(const QString &directory)
{
    if (!QDir().mkpath(directory))
        return false;
    const QString tool = demoBackendTool(directory);
    QFile::remove(tool);
    if (!QFile::link(QStringLiteral(DRAVIKON_DEMO_TOOL), tool))
        return false;
    const QString state = stateFile(directory);
    if (QFile::exists(state))
        return true;
    return QFile::copy(QStringLiteral(DRAVIKON_DEMO_STATE), state)
        && QFile::setPermissions(state, QFile::ReadOwner | QFile::WriteOwner);
}

QString demoBackendTool(const QString &directory)
{
    return directory + QLatin1String("/DBusController");
}
