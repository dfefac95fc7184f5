#include "tests/support/FakeDevice.h"

#include "tests/support/Files.h"

#include <QDir>

FakeDevice::FakeDevice()
    : devicePaths { directory.path(), directory.filePath("scripts/settings.js"),
        directory.filePath("tool") }
{
    const QDir webRoot(directory.path());
    webRoot.mkpath("locales/en");
    webRoot.mkpath("scripts");
    setTool(":");
}

void FakeDevice::setScript(const QByteArray &script)
{
    writeFile(devicePaths.settingsScript, script);
}

void FakeDevice::setScreens(const QByteArray &screens, const QByteArray &helpers)
{
    setScript(helpers + "var Settings = { setupStructureVersion: 7, settings: " + screens + " };");
}

void FakeDevice::setTool(const QByteArray &commands)
{
    // Written anew and moved into place: a file that is being written cannot be run.
    const QString draft = directory.filePath("draft");
    writeFile(draft,
        "#!/bin/sh\n(IFS='|'; printf '%s\\n' \"$*\") >> \"${0%/*}/calls\"\n" + commands + '\n');
    QFile::setPermissions(draft, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile::remove(devicePaths.backendTool);
    QFile::rename(draft, devicePaths.backendTool);
}

void FakeDevice::setTranslations(const QByteArray &json)
{
    writeFile(directory.filePath("locales/en/translation.json"), json);
}

QStringList FakeDevice::takeCalls()
{
    QFile log(directory.filePath("calls"));
    if (!log.open(QIODevice::ReadOnly))
        return {};
    log.seek(callsTaken);
    const QString text = QString::fromUtf8(log.readAll());
    callsTaken = log.pos();
    return text.split('\n', Qt::SkipEmptyParts);
}
