// The backend tool of the simulated device.
#pragma once

#include <QStringList>

/// What the tool of the device in `directory` answers to a call: the version, a JSON list, or
/// nothing. An accepted write changes the state, and so does the drift of an interface's values.
QByteArray simulatedAnswer(const QString &directory, const QStringList &arguments);

/// One run of the tool, for the device whose link to it has the name `argv[0]`. Returns the exit
/// status: 1 when there is no answer or it could not be printed.
int runSimulatedTool(int argc, char **argv);
