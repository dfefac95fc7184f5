// Variants to JSON text.
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

/// `value` as compact JSON in plain ASCII; characters beyond are escaped (`\u00e4`). Doubles have
/// `digits` significant digits (QLocale::FloatingPointShortest: as few as they need) and a point or
/// an exponent, so that they stay doubles. An invalid variant is null; a type that JSON lacks goes
/// as its text. Nothing when the value holds NaN or an infinity.
std::optional<QByteArray> jsonText(const QVariant &value, int digits = 20);
