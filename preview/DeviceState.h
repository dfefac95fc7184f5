// The state of the simulated device. Its backend tool keeps it in a JSON file, which people may
// edit: whatever the file holds, it can be loaded, and what has no sense there reads as empty.
#pragma once

#include <QStringList>
#include <QVariant>

#include <map>
#include <optional>

/// The values of a screen, for each compartment or meter of its own. All lists have a position for
/// each entry.
struct DeviceGroup {
    QStringList keys; ///< label keys, numbered where one comes again; none in a state made by hand
    QVariantList types; ///< what may be written: "any", "boolean", "integer", "text" or a list
    QVariantMap writes; ///< by the words of a write: the numbers of values that it may have
    QVariantList values;
};

/// A field interface, as the diagnose screens show it.
struct FieldInterface {
    QString query; ///< the command that asks for `answer`
    bool enabled = false;
    uint answers = 0; ///< how many were given while it was on
    QVariantList drift; ///< by position in the answer: how far its numbers move
    QVariant answer; ///< a list, or by the number of the query a list for each
};

struct DeviceState {
    QString version;
    QVariant sealClosed = true; ///< used when `seal` names no entry
    QStringList seal; ///< the words of the group and the key of the entry that is the seal
    QVariantMap limits; ///< by an entry's key: "min" and "max" of a number, "maxLength" of a text
    std::map<QString, DeviceGroup> groups; ///< by the words of a read, its number included
    std::map<QString, FieldInterface> interfaces; ///< by name
};

/// The value that is true while the electronic seal is closed.
QVariant &sealValue(DeviceState &state);

/// The file with the state of the device in `directory`.
QString stateFile(const QString &directory);

/// The state that a file holds; nothing when `json` is no JSON object.
std::optional<DeviceState> stateFromJson(const QByteArray &json);

/// The state in the file at `path`; nothing when there is none.
std::optional<DeviceState> loadState(const QString &path);

/// The content of the file.
QByteArray stateJson(DeviceState state);

/// Writes the state to the file at `path`: all of it or, with false, nothing.
bool saveState(const QString &path, const DeviceState &state);

/// `value` as the device writes it: decimals with no more digits than they need. Null when JSON
/// cannot hold the value.
QByteArray deviceJson(const QVariant &value);
