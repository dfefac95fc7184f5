// What the console reads as a number.
#pragma once

#include <QScriptValue>
#include <QVariant>

#include <cmath>

/// True for a number, and for a text that is one.
inline bool isNumber(const QVariant &value)
{
    bool isNumber = false;
    value.toDouble(&isNumber);
    return isNumber && value.type() != QVariant::Bool;
}

inline bool isNumber(const QScriptValue &value)
{
    const bool isBlank = value.isString() && value.toString().trimmed().isEmpty();
    return (value.isNumber() || value.isString()) && !isBlank && !qIsNaN(value.toNumber());
}

/// True for a number without a fraction.
inline bool isWhole(double number)
{
    return std::trunc(number) == number;
}
