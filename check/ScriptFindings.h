// script, no-version: the settings script as a whole.
#pragma once

#include "check/Finding.h"
#include "check/LoadedMenu.h"

/// Errors of the settings script, with the line where the engine knows it, and with the column too
/// where the script cannot be parsed; a missing version of the definition.
Findings scriptFindings(LoadedMenu &menu);
