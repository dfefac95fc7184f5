// The values of the menu, in groups that are read and written together. A repeated group has its
// values once for each compartment or meter.
#pragma once

#include <QStringList>
#include <QVariant>

/// What the device answers to a read with `words`: command words, for a repeated group followed by
/// the 0-based number of the instance. Invalid when there is no such group.
QVariant readValues(const QVariant &state, const QStringList &words);

/// Replaces the values of the screens that are written with `words`. A list of another length than
/// these screens have, a value of a type that its entry does not take and one beyond the device's
/// limits are refused, and nothing changes; a value that stays as it is always fits. A number typed
/// as text becomes a number.
bool writeValues(QVariant &state, const QStringList &words, const QVariantList &newValues);
