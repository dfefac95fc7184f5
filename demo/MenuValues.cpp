#include "demo/MenuValues.h"

#include "demo/DeviceState.h"

#include <QStringList>

#include <cmath>

namespace {

bool isInteger(const QVariant &value)
{
    return value.type() == QVariant::LongLong || value.type() == QVariant::ULongLong;
}

bool isNumber(const QVariant &value)
{
    return isInteger(value) || value.type() == QVariant::Double;
}

// The console sends a typed number as the text that was typed.
void convertTypedNumber(const QVariant &stored, QVariant &value)
{
    if (value.type() != QVariant::String)
        return;
    bool isConverted = false;
    QVariant number;
    if (isInteger(stored))
        number = value.toString().toLongLong(&isConverted);
    else if (stored.type() == QVariant::Double)
        number = value.toString().toDouble(&isConverted);
    if (isConverted && std::isfinite(number.toDouble()))
        value = number;
}

bool hasTypeOf(const QVariant &stored, const QVariant &value)
{
    if (isInteger(stored))
        return isInteger(value);
    if (!stored.isValid())
        return !value.isValid() || value.type() == QVariant::String;
    return value.type() == stored.type();
}

bool isWithin(const QVariantMap &limit, const QVariant &value)
{
    const QVariant maxLength = limit.value(QStringLiteral("maxLength"));
    if (value.type() == QVariant::String)
        return !maxLength.isValid() || value.toString().size() <= maxLength.toInt();
    const QVariant min = limit.value(QStringLiteral("min"));
    const QVariant max = limit.value(QStringLiteral("max"));
    return !isNumber(value)
        || ((!min.isValid() || value.toDouble() >= min.toDouble())
            && (!max.isValid() || value.toDouble() <= max.toDouble()));
}

QVariantList pathOf(const QString &group, int instance)
{
    const QVariantList path { QStringLiteral("groups"), group };
    if (instance < 0)
        return path + QVariantList { QStringLiteral("values") };
    return path + QVariantList { QStringLiteral("instances"), instance };
}

} // namespace

QVariant menuValues(const QVariant &state, const QString &group, int instance)
{
    return valueAt(state, pathOf(group, instance));
}

bool setMenuValues(
    QVariant &state, const QString &group, int instance, const QVariantList &newValues)
{
    const QVariant stored = menuValues(state, group, instance);
    const QVariantList before = stored.toList();
    if (!stored.isValid() || newValues.size() != before.size())
        return false;
    QVariantList accepted = newValues;
    for (int index = 0; index < accepted.size(); ++index) {
        QVariant &value = accepted[index];
        convertTypedNumber(before.at(index), value);
        if (!hasTypeOf(before.at(index), value))
            return false;
        const QVariant limit = valueAt(state,
            { QStringLiteral("groups"), group, QStringLiteral("limits"), QString::number(index) });
        if (value != before.at(index) && !isWithin(limit.toMap(), value))
            return false;
    }
    setValueAt(state, pathOf(group, instance), accepted);
    return true;
}
