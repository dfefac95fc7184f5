#include "preview/MenuValues.h"

#include "preview/DeviceState.h"

#include <algorithm>

namespace {

struct Address {
    QString words;
    int instance; ///< -1 for none
};

// The last word is the number of an instance, or one of the group's own.
QVector<Address> addresses(const QStringList &words)
{
    QVector<Address> found { { words.join(QLatin1Char(' ')), -1 } };
    bool isNumber = false;
    const int instance = words.value(words.size() - 1).toInt(&isNumber);
    if (isNumber && instance >= 0)
        found.push_back({ words.mid(0, words.size() - 1).join(QLatin1Char(' ')), instance });
    return found;
}

QVariantList pathOf(const QString &group, int instance)
{
    const QVariantList path { QStringLiteral("groups"), group };
    if (instance < 0)
        return path + QVariantList { QStringLiteral("values") };
    return path + QVariantList { QStringLiteral("instances"), instance };
}

// The console sends a typed number as the text that was typed.
QVariant withTypedNumber(const QVariant &type, const QVariant &value)
{
    bool isNumber = false;
    const qlonglong number = value.toString().toLongLong(&isNumber);
    const bool isTyped = type == QLatin1String("integer") && value.type() == QVariant::String;
    return isTyped && isNumber ? QVariant(number) : value;
}

bool hasType(const QVariant &type, const QVariant &value)
{
    if (type.type() == QVariant::List) {
        const QVariantList options = type.toList();
        return std::any_of(options.begin(), options.end(),
            [&](const QVariant &option) { return deviceJson(option) == deviceJson(value); });
    }
    if (type == QLatin1String("boolean"))
        return value.type() == QVariant::Bool;
    if (type == QLatin1String("integer"))
        return value.type() == QVariant::LongLong;
    return type != QLatin1String("text") || value.type() == QVariant::String;
}

bool isWithin(const QVariantMap &limit, const QVariant &value)
{
    const auto bound = [&](const char *name, const QVariant &own) {
        return limit.value(QLatin1String(name), own).toDouble();
    };
    if (value.type() == QVariant::String)
        return value.toString().size() <= bound("maxLength", value.toString().size());
    const double number = value.toDouble();
    return bound("min", number) <= number && number <= bound("max", number);
}

// Writes the values of one screen, which are the first of its group.
bool writeScreen(
    QVariant &state, const QVariantMap &screen, int instance, const QVariantList &newValues)
{
    const QString group = screen.value(QStringLiteral("group")).toString();
    const QVariantList types = screen.value(QStringLiteral("types")).toList();
    const QVariantList path = pathOf(group, instance);
    QVariantList values = valueAt(state, path).toList();
    if (newValues.size() != types.size() || newValues.size() > values.size())
        return false;
    const QVariantMap limits =
        valueAt(state, { QStringLiteral("groups"), group, QStringLiteral("limits") }).toMap();
    for (int index = 0; index < newValues.size(); ++index) {
        const QVariant value = withTypedNumber(types.at(index), newValues.at(index));
        if (deviceJson(value) == deviceJson(values.at(index)))
            continue;
        const QVariantMap limit = limits.value(QString::number(index)).toMap();
        if (!hasType(types.at(index), value) || !isWithin(limit, value))
            return false;
        values[index] = value;
    }
    setValueAt(state, path, values);
    return true;
}

} // namespace

QVariant readValues(const QVariant &state, const QStringList &words)
{
    QVariant values;
    for (const Address &address : addresses(words)) {
        if (!values.isValid())
            values = valueAt(state, pathOf(address.words, address.instance));
    }
    return values;
}

bool writeValues(QVariant &state, const QStringList &words, const QVariantList &newValues)
{
    bool isAccepted = false;
    for (const Address &address : addresses(words)) {
        const QVariantList screens =
            valueAt(state, { QStringLiteral("writes"), address.words }).toList();
        for (const QVariant &screen : screens)
            isAccepted |= writeScreen(state, screen.toMap(), address.instance, newValues);
    }
    return isAccepted;
}
