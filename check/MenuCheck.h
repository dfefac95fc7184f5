// The report on a menu definition.
#pragma once

#include "check/LoadedMenu.h"

/// The problems of the definition, one a line: severity, css of the screen, labels on the way to
/// the item, what is wrong and what to do, and in brackets the name of the finding. A screen or
/// field allows what is meant by the names in its attribute "checkIgnore".
QStringList menuProblems(LoadedMenu &menu);
