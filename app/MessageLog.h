// Where messages of the program go, so that none appears on the screen.
#pragma once

#include <QByteArray>

#include <syslog.h>

/// Sends all messages to standard error or, if that is a terminal, to the log daemon at
/// `logSocket`; a fatal one to standard error in any case. Never waits: a message that is not taken
/// at once is dropped, and the next one that is taken follows a line with the number of those
/// dropped.
void installMessageLog(const QByteArray &logSocket = _PATH_LOG);
