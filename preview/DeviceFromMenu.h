// A simulated device for a menu definition, made from the definition itself.
#pragma once

#include "platform/DevicePaths.h"
#include "preview/DeviceState.h"

/// Settings from the command line; those that are not set keep their value.
struct DeviceWishes {
    std::optional<int> compartments;
    std::optional<int> meters;
    std::optional<bool> isSealOpen;
};

/// The state of a device that answers every read of the definition in `paths` with one value for
/// each entry, of the kind that the entry shows, and takes back what its screens write. A value in
/// `known`, a state made by hand or by an earlier run, replaces the invented one of the entry with
/// its key. What `known` has for other screens stays, too.
DeviceState deviceFromMenu(
    const DevicePaths &paths, const DeviceState &known, const DeviceWishes &wishes);
