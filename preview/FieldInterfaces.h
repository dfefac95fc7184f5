// The field interfaces of the simulated device, as the diagnose screens ask for them.
#pragma once

#include "preview/DeviceState.h"

/// The answer to the list query `query`; the TAG interface has one for each `number`. While the
/// interface is enabled, its values drift by a step with each answer. Invalid for an unknown query.
QVariant interfaceAnswer(DeviceState &state, const QString &query, const QString &number);

/// Switches an interface on or off; `request` is a list of its name and a boolean. Returns false
/// for any other request and for an unknown interface.
bool switchInterface(DeviceState &state, const QVariantList &request);
