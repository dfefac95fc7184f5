// The values of the simulated device's menu.
#pragma once

#include "preview/DeviceState.h"

/// Replaces the first values of each group that `words` write. False, and nothing changes, for a
/// number of values that no such screen has, a value of a type that its entry does not take, and
/// one beyond the device's limits; a value that stays as it is always fits. A number typed as text
/// becomes a number.
bool acceptWrite(DeviceState &state, const QString &words, const QVariantList &newValues);
