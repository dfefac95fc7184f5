#include "demo/StateFile.h"

#include <QFile>
#include <QSaveFile>

QString stateFile(const QString &directory)
{
    return directory + QLatin1String("/state.json");
}

bool loadState(const QString &directory, JsonDocument &state)
{
    QFile file(stateFile(directory));
    return file.open(QIODevice::ReadOnly) && parseJson(file.readAll(), state);
}

bool saveState(const QString &directory, const JsonDocument &state)
{
    QSaveFile file(stateFile(directory));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(indentedJson(state) + '\n');
    return file.commit();
}
