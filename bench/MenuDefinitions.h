// Generated menu definitions.
#pragma once

#include <QByteArray>

/// A settings script with `count` screens, at least 20: a tenth of them hold references to the
/// others, which are at the end of the array and hold three fields each.
QByteArray scriptWithScreens(int count);

/// A settings script whose root holds `count` fields.
QByteArray scriptWithFields(int count);
