// The field interfaces of the simulated device, as the diagnose screens ask for them.
#pragma once

#include "demo/Json.h"

/// The answer of the list query `query`, for the TAG interface that of `number`. Each answer of an
/// interface that is switched on lets its values drift a step further. False when there is no such
/// interface.
bool interfaceAnswer(
    JsonDocument &state, const QByteArray &query, const QByteArray &number, JsonDocument &answer);

/// Switches an interface on or off as `request` says, a list of its name and a boolean; false when
/// there is no such interface.
bool enableInterface(JsonDocument &state, const Json &request);
