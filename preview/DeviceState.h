// The state of the simulated device, which its backend tool keeps in a JSON file. People may edit
// the file: a value of the wrong type is loaded as an empty one.
#pragma once

#include <QStringList>
#include <QVariant>

#include <map>
#include <optional>

/// The values of a screen; a repeated screen has a group for each compartment or meter. The lists
/// are parallel, with one element for each entry of the screen.
struct DeviceGroup {
    QStringList keys; ///< label keys, repeated ones with a number; empty in a state made by hand
    QVariantList types; ///< what may be written: "any", "boolean", "integer", "text" or a list
    QVariantMap writes; ///< by the words of a write: how many values it may have, a list
    QVariantList values;
};

/// A field interface, as the diagnose screens show it.
struct FieldInterface {
    QString query; ///< the command that asks for `answer`
    bool enabled = false;
    uint answers = 0; ///< given while it was enabled
    QVariantList drift; ///< by position in the answer: how far its numbers move
    QVariant answer; ///< a list, or an object with a list for each number in a query
};

struct DeviceState {
    QString version;
    QVariant sealClosed = true; ///< used when `seal` names no entry
    QStringList seal; ///< the words of the group and the key of the entry that is the seal
    QVariantMap limits; ///< by an entry's key: "min" and "max" of a number, "maxLength" of a text
    std::map<QString, DeviceGroup> groups; ///< by the words of a read, its number included
    std::map<QString, FieldInterface> interfaces; ///< by name
};

/// Keeps the calls of other processes away from the state in `directory` for a scope; waits until
/// they are done. The end of a process ends its locks.
class StateLock {
public:
    explicit StateLock(const QString &directory);
    ~StateLock();
    Q_DISABLE_COPY(StateLock)

private:
    const int descriptor;
};

/// The value that is true while the electronic seal is closed.
QVariant &sealValue(DeviceState &state);

/// The file with the state of the device in `directory`.
QString stateFile(const QString &directory);

/// The state that a file holds; nothing when `json` is no JSON object.
std::optional<DeviceState> stateFromJson(const QByteArray &json);

/// The state in the file at `path`; nothing when the file cannot be read or is no JSON object.
std::optional<DeviceState> loadState(const QString &path);

/// The content of the file for `state`.
QByteArray stateJson(DeviceState state);

/// Replaces the file at `path`. On failure returns false and leaves the file as it was.
bool saveState(const QString &path, const DeviceState &state);

/// `value` as the device writes it: decimals with no more digits than they need. Null when JSON
/// cannot hold the value.
QByteArray deviceJson(const QVariant &value);
