// The values of the simulated device's menu.
#pragma once

#include "preview/DeviceState.h"

/// Replaces the first values of each group that `words` write. Returns false and changes nothing if
/// no such screen has that number of values, or if a value has the wrong type or is beyond the
/// device's limits; an unchanged value is always accepted. A number typed as text becomes a number.
bool acceptWrite(DeviceState &state, const QString &words, const QVariantList &newValues);
