// What a value reads as, whether it comes from the backend or from the menu definition.
#pragma once

#include <QString>
#include <QVariant>

/// The text of a value: a floating-point number with up to 15 significant digits, empty for what
/// has no text.
QString textOf(const QVariant &value);

/// The integer nearest to a number, or the one that a text consists of; 0 for everything else and
/// for what does not fit into 64 bits.
qint64 wideIntegerOf(const QVariant &value);

/// As `wideIntegerOf`, but 0 for what does not fit into an int.
int integerOf(const QVariant &value);

/// True for `true`, numbers other than 0, and texts other than "", "0" and "false" in any case.
bool truthOf(const QVariant &value);
