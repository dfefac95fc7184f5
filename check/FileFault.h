// Files of the web interface that the console cannot load.
#pragma once

#include "platform/DevicePaths.h"

/// The first file that cannot be loaded, with the reason: the settings script or the English
/// translation table. Empty when both can.
QString fileFault(const DevicePaths &paths);
