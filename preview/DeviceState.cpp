#include "preview/DeviceState.h"

#include "json/JsonReader.h"
#include "json/JsonWriter.h"
#include "platform/FileContent.h"

#include <QFile>
#include <QLocale>
#include <QSaveFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

// The keys of the file, each with its member. Loading and saving visit the same ones.

template <typename Visit> void visitMembers(DeviceGroup &group, const Visit &visit)
{
    visit("keys", group.keys);
    visit("types", group.types);
    visit("writes", group.writes);
    visit("values", group.values);
}

template <typename Visit> void visitMembers(FieldInterface &interface, const Visit &visit)
{
    visit("query", interface.query);
    visit("enabled", interface.enabled);
    visit("answers", interface.answers);
    visit("drift", interface.drift);
    visit("answer", interface.answer);
}

template <typename Visit> void visitMembers(DeviceState &state, const Visit &visit)
{
    visit("version", state.version);
    visit("sealClosed", state.sealClosed);
    visit("seal", state.seal);
    visit("limits", state.limits);
    visit("groups", state.groups);
    visit("interfaces", state.interfaces);
}

struct Loader {
    template <typename Member> void operator()(const char *key, Member &member) const
    {
        if (const auto value = object.find(QLatin1String(key)); value != object.end())
            member = value->value<Member>();
    }

    template <typename Part> void operator()(const char *key, std::map<QString, Part> &parts) const
    {
        const QVariantMap objects = object.value(QLatin1String(key)).toMap();
        for (auto entry = objects.begin(); entry != objects.end(); ++entry)
            visitMembers(parts[entry.key()], Loader { entry->toMap() });
    }

    QVariantMap object;
};

// Leaves out what is empty or off.
struct Saver {
    template <typename Member> void operator()(const char *key, const Member &member) const
    {
        if (member != Member())
            object[QLatin1String(key)] = QVariant::fromValue(member);
    }

    template <typename Part> void operator()(const char *key, std::map<QString, Part> &parts) const
    {
        QVariantMap objects;
        for (auto &[name, part] : parts) {
            QVariantMap entry;
            visitMembers(part, Saver { entry });
            objects[name] = entry;
        }
        object[QLatin1String(key)] = objects;
    }

    QVariantMap &object;
};

// For a reader: one member a line, lists on one line.
QByteArray indented(const QVariant &value, const QByteArray &margin)
{
    if (value.type() != QVariant::Map)
        return deviceJson(value);
    const QByteArray innerMargin = margin + "    ";
    QByteArrayList members;
    const QVariantMap map = value.toMap();
    for (auto member = map.cbegin(); member != map.cend(); ++member) {
        members +=
            innerMargin + deviceJson(member.key()) + ": " + indented(member.value(), innerMargin);
    }
    return "{\n" + members.join(",\n") + '\n' + margin + '}';
}

} // namespace

StateLock::StateLock(const QString &directory)
    : descriptor(open(QFile::encodeName(directory).constData(), O_RDONLY | O_CLOEXEC))
{
    while (flock(descriptor, LOCK_EX) < 0 && errno == EINTR) { }
}

StateLock::~StateLock()
{
    close(descriptor);
}

QVariant &sealValue(DeviceState &state)
{
    const auto group =
        state.seal.size() < 2 ? state.groups.end() : state.groups.find(state.seal[0]);
    if (group == state.groups.end())
        return state.sealClosed;
    const int place = group->second.keys.indexOf(state.seal.value(1));
    QVariantList &values = group->second.values;
    return place >= 0 && place < values.size() ? values[place] : state.sealClosed;
}

QString stateFile(const QString &directory)
{
    return directory + QLatin1String("/state.json");
}

std::optional<DeviceState> stateFromJson(const QByteArray &json)
{
    const QVariant value = parseJson(json).value_or(QVariant());
    if (value.type() != QVariant::Map)
        return std::nullopt;
    DeviceState state;
    visitMembers(state, Loader { value.toMap() });
    return state;
}

std::optional<DeviceState> loadState(const QString &path)
{
    return stateFromJson(fileContent(path).value_or(QByteArray()));
}

QByteArray stateJson(DeviceState state)
{
    QVariantMap object;
    visitMembers(state, Saver { object });
    return indented(object, {}) + '\n';
}

bool saveState(const QString &path, const DeviceState &state)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    // On a full disk only flush() notices that the last bytes are lost.
    const QByteArray json = stateJson(state);
    return file.write(json) == json.size() && file.flush() && file.commit();
}

QByteArray deviceJson(const QVariant &value)
{
    return jsonText(value, QLocale::FloatingPointShortest).value_or("null");
}
