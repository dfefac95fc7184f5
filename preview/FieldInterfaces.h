// The field interfaces of the simulated device, as the diagnose screens ask for them.
#pragma once

#include <QVariant>

/// The answer of the list query `query`, for the TAG interface that of `number`. Each answer of an
/// interface that is switched on lets its values drift a step further. Invalid when there is no
/// such interface.
QVariant interfaceAnswer(QVariant &state, const QString &query, const QString &number);

/// Switches an interface on or off as `request` says, a list of its name and a boolean; false when
/// there is no such interface.
bool enableInterface(QVariant &state, const QVariantList &request);
