// The state of the simulated device: the value of a JSON file that its backend tool keeps up to
// date. A path leads into it, with a text for the member of an object and a number for the element
// of a list.
#pragma once

#include <QVariant>

/// The file with the state of the device in `directory`.
QString stateFile(const QString &directory);

/// The state in the file at `path`; invalid when there is none.
QVariant loadState(const QString &path);

/// Writes the state to the file at `path`: all of it or, with false, nothing.
bool saveState(const QString &path, const QVariant &state);

/// What `path` leads to in `state`; invalid when there is nothing.
QVariant valueAt(QVariant state, const QVariantList &path);

/// Puts `value` where `path` leads to. Members that are missing on the way are added; where a list
/// has no such element nothing changes.
void setValueAt(QVariant &state, const QVariantList &path, const QVariant &value);

/// `value` as the device writes it: decimals with no more digits than they need. Null when JSON
/// cannot hold the value.
QByteArray deviceJson(const QVariant &value);
