// A device on disk whose every file the test writes: settings script, translations, backend tool.
#pragma once

#include "platform/DevicePaths.h"

#include <QStringList>
#include <QTemporaryDir>

class FakeDevice {
public:
    /// A device without a script and without translations, whose tool prints nothing.
    FakeDevice();

    /// The text of the settings script.
    void setScript(const QByteArray &script);

    /// The settings script with a global `Settings` whose array of screens is `screens`, after the
    /// definitions `helpers`.
    void setScreens(const QByteArray &screens, const QByteArray &helpers = {});

    /// What the tool does after it has noted its call: shell commands; "$*" are its arguments.
    void setTool(const QByteArray &commands);

    /// The English translation table.
    void setTranslations(const QByteArray &json);

    const DevicePaths &paths() const { return devicePaths; }

    /// The calls of the tool since the last question, each with its arguments joined by "|".
    QStringList takeCalls();

private:
    QTemporaryDir directory;
    DevicePaths devicePaths;
    qint64 callsTaken = 0; ///< bytes of the log
};
