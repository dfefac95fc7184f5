// The backend tool of the simulated device.
#pragma once

#include "preview/DeviceState.h"

#include <functional>

/// What the tool of a device answers to a call: the version, a JSON list, or nothing. An accepted
/// write changes the state, and so does the drift of an interface's values; `save` then keeps it,
/// and a write that it cannot keep is refused.
QByteArray simulatedAnswer(
    DeviceState &state, const QStringList &arguments, const std::function<bool()> &save);

/// One run of the tool, for the device whose link to it has the name `argv[0]`. Returns the exit
/// status: 1 when there is no answer or it could not be printed.
int runSimulatedTool(int argc, char **argv);
