// The file that keeps the state of the simulated device between the runs of its backend tool.
#pragma once

#include "demo/Json.h"

#include <QString>

/// The path of the state file of the device in `directory`.
QString stateFile(const QString &directory);

/// Reads the state of the device in `directory`; false when there is none.
bool loadState(const QString &directory, JsonDocument &state);

/// Writes the state of the device in `directory`: all of it or, with false, nothing.
bool saveState(const QString &directory, const JsonDocument &state);
