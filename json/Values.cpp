#include "json/Values.h"

#include <cfloat>
#include <cmath>

QString textOf(const QVariant &value)
{
    if (value.type() == QVariant::Double)
        return QString::number(value.toDouble(), 'g', DBL_DIG);
    return value.toString();
}

qint64 wideIntegerOf(const QVariant &value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (value.type() == QVariant::Double) {
        const double rounded = std::floor(value.toDouble() + 0.5);
        return rounded >= -limit && rounded < limit ? qint64(rounded) : 0;
    }
    if (value.type() == QVariant::ULongLong)
        return qMax<qint64>(value.toLongLong(), 0); // what does not fit wraps to a negative number
    return value.toLongLong();
}

int integerOf(const QVariant &value)
{
    const qint64 number = wideIntegerOf(value);
    return number == int(number) ? int(number) : 0;
}

bool truthOf(const QVariant &value)
{
    return value.type() == QVariant::Double ? value.toDouble() != 0 : value.toBool();
}
