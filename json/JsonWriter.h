// Variants to JSON text.
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

/// `value` as compact JSON in plain ASCII: integers as integers, doubles with `digits` significant
/// digits (QLocale::FloatingPointShortest: as few as they need) and always recognisable as such,
/// texts with every character (`\u00e4`), invalid variants as null; whatever JSON has no type for
/// goes as its text. Nothing when the value holds NaN or an infinity.
std::optional<QByteArray> jsonText(const QVariant &value, int digits = 20);
