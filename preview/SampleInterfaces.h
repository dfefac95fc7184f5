// Field interfaces for a simulated device.
#pragma once

#include "preview/DeviceState.h"

/// The six interfaces by name. One module is missing, one is faulty, and some have fewer channels
/// than the screen has room for.
std::map<QString, FieldInterface> sampleInterfaces();
