// A directory that is the simulated device: its backend tool and its state.
#pragma once

#include <QString>

/// Makes `directory` a device, created if missing: a link to the backend tool and, unless it has a
/// state from an earlier run, the initial state. False when that fails.
bool makeDemoDevice(const QString &directory);

/// The backend tool of the device in `directory`.
QString demoBackendTool(const QString &directory);
