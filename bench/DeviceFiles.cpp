#include "bench/DeviceFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

DeviceFiles::DeviceFiles()
{
    if (!directory.isValid())
        qFatal("no temporary directory: %s", qPrintable(directory.errorString()));
}

void DeviceFiles::write(const QString &path, const QByteArray &content)
{
    QFile file(directory.filePath(path));
    if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly)
        || file.write(content) != content.size())
        qFatal("cannot write %s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
}

void DeviceFiles::writeSettings(const QByteArray &script)
{
    write(QStringLiteral("scripts/settings.js"), script);
}

void DeviceFiles::writeTranslations(const QByteArray &table)
{
    write(QStringLiteral("locales/en/translation.json"), table);
}
