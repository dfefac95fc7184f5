// translation-table: files of the web interface that the console cannot load.
#pragma once

#include "check/Finding.h"
#include "platform/DevicePaths.h"

/// The settings script and why it cannot be read, which prevents any check; empty if it can.
QString unreadableScript(const DevicePaths &paths);

/// The English translation table in the web interface's folder `webRoot`.
QString translationTable(const QString &webRoot);

/// Why the translation table at `path` cannot be loaded.
Findings tableFindings(const QString &path);
