#include "preview/DeviceState.h"

#include "json/JsonReader.h"
#include "json/JsonWriter.h"

#include <QFile>
#include <QLocale>
#include <QSaveFile>

namespace {

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

bool isMember(const QVariant &step)
{
    return step.type() == QVariant::String;
}

} // namespace

QString stateFile(const QString &directory)
{
    return directory + QLatin1String("/state.json");
}

QVariant loadState(const QString &path)
{
    QFile file(path);
    if (!file.exists() || !file.open(QIODevice::ReadOnly))
        return {};
    return parseJson(file.readAll()).value_or(QVariant());
}

bool saveState(const QString &path, const QVariant &state)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(indented(state, {}) + '\n');
    return file.commit();
}

QVariant valueAt(QVariant state, const QVariantList &path)
{
    for (const QVariant &step : path) {
        state = isMember(step) ? state.toMap().value(step.toString())
                               : state.toList().value(step.toInt());
    }
    return state;
}

void setValueAt(QVariant &state, const QVariantList &path, const QVariant &value)
{
    if (path.isEmpty()) {
        state = value;
    } else if (isMember(path.first())) {
        QVariantMap map = state.toMap();
        setValueAt(map[path.first().toString()], path.mid(1), value);
        state = map;
    } else {
        QVariantList list = state.toList();
        const int index = path.first().toInt();
        if (index >= 0 && index < list.size())
            setValueAt(list[index], path.mid(1), value);
        state = list;
    }
}

QByteArray deviceJson(const QVariant &value)
{
    return jsonText(value, QLocale::FloatingPointShortest).value_or("null");
}
