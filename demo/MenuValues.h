// The values of the menu: groups of values, some of them once for each compartment or meter.
#pragma once

#include <QVariant>

/// The values of `group`, for a repeated group those of `instance` (-1 for a group that is not
/// repeated); invalid when there are none.
QVariant menuValues(const QVariant &state, const QString &group, int instance);

/// Replaces all values of a group. A list of another length, a value of another type or one beyond
/// the device's limits is refused: then nothing changes. A number typed as text becomes a number.
bool setMenuValues(
    QVariant &state, const QString &group, int instance, const QVariantList &newValues);
