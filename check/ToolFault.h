// Why a backend tool cannot be started.
#pragma once

#include <QString>

/// The reason with what to do about it; empty if the tool at `path` seems to be a program or a
/// script with an interpreter.
QString toolFault(const QString &path);
