// Where the device keeps what the console reads and runs.
#pragma once

#include <QString>

/// The three fixed paths of the device. The product uses the defaults and nothing outside the
/// program can change them; the demo and the tests run the same code on paths of their own.
struct DevicePaths {
    QString webRoot = QStringLiteral("/var/www/zel_tavrolink_gui"); ///< no trailing slash
    QString settingsScript = webRoot + QStringLiteral("/scripts/settings.js");
    QString backendTool = QStringLiteral("/var/www/backend/DBusController");
};
