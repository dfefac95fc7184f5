// The values behind the menu: groups of values, some of them once for each compartment or meter.
#pragma once

#include "demo/Json.h"

/// The values of `group`, for a repeated group those of `instance` (-1 for a group that is not
/// repeated); nullptr when there are none.
Json *menuValues(JsonDocument &state, const QByteArray &group, int instance);

/// Replaces all values of a group. A list of another length, a value of another type or one beyond
/// the device's limits is refused: then nothing changes. A number typed as text becomes a number.
bool setMenuValues(
    JsonDocument &state, const QByteArray &group, int instance, const Json &newValues);
