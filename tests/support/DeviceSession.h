// A session of the console on a fake device.
#pragma once

#include "terminal/PtySession.h"
#include "tests/support/FakeDevice.h"

#include <QFile>

class DeviceSession : public PtySession {
public:
    FakeDevice device;

    ~DeviceSession() { kill(); }

    /// Starts the test session `program`, its messages going to a file, and does not wait for its
    /// first frame.
    bool run(const QString &program, int rows = 24, int columns = 80, int idleMs = 180000)
    {
        setStandardError(messagePath());
        return start(program, arguments(idleMs), rows, columns);
    }

    QStringList arguments(int idleMs = 180000) const
    {
        const DevicePaths &paths = device.paths();
        return { paths.webRoot, paths.settingsScript, paths.backendTool, QString::number(idleMs) };
    }

    /// Waits for the title bar of the first frame.
    bool hasTitle() { return waitForText(QStringLiteral("Drav")); }

    /// Presses all keys, one by one.
    bool press(const QByteArrayList &keys)
    {
        return std::all_of(keys.begin(), keys.end(),
            [this](const QByteArray &key) { return PtySession::press(key); });
    }

    QString messages() const
    {
        QFile file(messagePath());
        return file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll()) : QString();
    }

private:
    QString messagePath() const { return device.paths().webRoot + QStringLiteral("/messages"); }
};
