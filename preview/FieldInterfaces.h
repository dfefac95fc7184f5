// The field interfaces of the simulated device, as the diagnose screens ask for them.
#pragma once

#include "preview/DeviceState.h"

/// The answer to the list query `query`, for the TAG interface that of `number`. With each answer
/// while the interface is switched on, its values drift a step further. Invalid when there is no
/// such interface.
QVariant interfaceAnswer(DeviceState &state, const QString &query, const QString &number);

/// Switches an interface on or off. `request` is a list of its name and a boolean; false when it is
/// not, or there is no such interface.
bool switchInterface(DeviceState &state, const QVariantList &request);
