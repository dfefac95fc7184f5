// A simulated device for a menu definition, made from the definition itself.
#pragma once

#include "platform/DevicePaths.h"

#include <QVariant>

#include <optional>

/// What the device is wanted to be like; what is not set stays as it is known.
struct DeviceWishes {
    std::optional<int> compartments;
    std::optional<int> meters;
    std::optional<bool> isSealOpen;
};

/// The state of a device that answers every read of the definition in `paths` with one value for
/// each entry, of the kind that the entry shows, and takes back what its screens write. Values in
/// `known`, a state made by hand or by an earlier run, replace the invented ones of groups that
/// still have as many.
QVariant deviceFromMenu(
    const DevicePaths &paths, const QVariant &known, const DeviceWishes &wishes);
