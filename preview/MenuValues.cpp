#include "preview/MenuValues.h"

#include <algorithm>

namespace {

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

bool writeGroup(DeviceGroup &group, const QVariantMap &limits, const QVariantList &newValues)
{
    if (newValues.size() > group.values.size())
        return false;
    QVariantList values = group.values;
    for (int index = 0; index < newValues.size(); ++index) {
        const QVariant type = group.types.value(index);
        const QVariant value = withTypedNumber(type, newValues.at(index));
        if (deviceJson(value) == deviceJson(values.at(index)))
            continue;
        const QVariantMap limit = limits.value(group.keys.value(index)).toMap();
        if (!hasType(type, value) || !isWithin(limit, value))
            return false;
        values[index] = value;
    }
    group.values = values;
    return true;
}

} // namespace

bool acceptWrite(DeviceState &state, const QString &words, const QVariantList &newValues)
{
    bool isAccepted = false;
    for (auto &[readWords, group] : state.groups) {
        const QVariantList sizes = group.writes.value(words).toList();
        if (sizes.contains(newValues.size()) && writeGroup(group, state.limits, newValues))
            isAccepted = true;
    }
    return isAccepted;
}
