// What the console reads as a number.
#pragma once

#include <QScriptValue>
#include <QVariant>

#include <cmath>

/// True for a number, and for a text that is a whole one, as "5"; the console takes 0 for "5.0".
inline bool isNumber(const QVariant &value)
{
    bool isNumber = false;
    if (value.type() == QVariant::String)
        value.toLongLong(&isNumber);
    else
        value.toDouble(&isNumber);
    return isNumber && value.type() != QVariant::Bool;
}

/// True for a number of the menu definition, and for a text that is one.
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
