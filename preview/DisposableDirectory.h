// A temporary directory that does not outlive the program.
#pragma once

#include <QString>

/// Makes a directory that is removed when this process ends, in whatever way: by a signal, SIGKILL
/// included, too. `pathTemplate` is as for QTemporaryDir. Empty when it cannot be made.
QString makeDisposableDirectory(const QString &pathTemplate);
