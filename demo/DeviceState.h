// The state of the simulated device: the value of a JSON file that its backend tool keeps up to
// date. A path leads into it, with a text for the member of an object and a number for the element
// of a list.
#pragma once

#include <QVariant>

/// The file with the state of the device in `directory`.
QString stateFile(const QString &directory);

/// The state of the device in `directory`; invalid when there is none.
QVariant loadState(const QString &directory);

/// Writes the state of the device in `directory`: all of it or, with false, nothing.
bool saveState(const QString &directory, const QVariant &state);

/// What `path` leads to in `state`; invalid when there is nothing.
QVariant valueAt(QVariant state, const QVariantList &path);

/// Puts `value` where `path` leads to. Members that are missing on the way are added; an element
/// must exist.
void setValueAt(QVariant &state, const QVariantList &path, const QVariant &value);

/// `value` as the device writes it: decimals with no more digits than they need.
QByteArray deviceJson(const QVariant &value);
