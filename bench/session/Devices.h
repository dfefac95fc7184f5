// The devices that the console is measured on.
#pragma once

#include "bench/DeviceFiles.h"

#include <QStringList>
#include <QVector>

/// The simulated device of the demo.
class DemoDevice {
public:
    DemoDevice();

    /// The arguments with which `bench-console` opens this device.
    QStringList arguments() const { return { QStringLiteral(DRAVIKON_DEMO_WEB), tool() }; }

    /// The same, but the calls of the tool are recorded.
    QStringList recordedArguments() const;

    /// The calls recorded since the last query, as commands that repeat them.
    QVector<QStringList> takeCalls();

private:
    QString tool() const { return files.path(QStringLiteral("DBusController")); }

    DeviceFiles files;
};

/// A device with a single page of fields.
class LargeDevice {
public:
    /// Whether its definition makes the fields in a loop or spells each one out.
    enum Definition { Loop, SpelledOut };

    LargeDevice(int items, Definition definition);

    /// The arguments with which `bench-console` opens this device.
    QStringList arguments() const;

private:
    DeviceFiles files;
};
