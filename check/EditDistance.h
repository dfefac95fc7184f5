// How alike two words are.
#pragma once

#include <QString>

/// The number of characters to be inserted, removed, replaced or swapped with their neighbour.
int editDistance(const QString &from, const QString &to);
