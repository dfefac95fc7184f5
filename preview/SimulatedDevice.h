// A directory that is the simulated device: its state and a link to its backend tool.
#pragma once

#include "preview/DeviceFromMenu.h"

#include <QString>

/// Makes `directory` a device for the menu definition in `paths`, created if missing. Its values
/// are those of an earlier run in the directory, else those in the file `values`, and invented
/// where there are none. `program` becomes the backend tool: the program that calls
/// `runSimulatedTool` when its name is that of the tool. Returns an error message, empty on
/// success.
QString makeSimulatedDevice(const QString &directory, const QString &program,
    const DevicePaths &paths, const QString &values, const DeviceWishes &wishes);

/// The backend tool of the device in `directory`.
QString simulatedTool(const QString &directory);

/// True when the program was started by the link to the backend tool.
bool isSimulatedTool(const char *program);
