// The first and the last row of every screen.
#pragma once

#include <QString>

/// The red row with the maker's name.
QString headerBar();

/// The blue row with the versions of console, menu definition and backend.
QString titleBar(const QString &setupVersion, const QString &backendVersion);
