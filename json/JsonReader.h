// JSON text to variants.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

/// The value that `json` holds: any JSON value at the top level. Integers without fraction or
/// exponent become qlonglong, or qulonglong where they need it, other numbers double, null an
/// invalid variant; of equal keys the last counts. Nothing when the text is no JSON, has bytes
/// after the value, holds a number beyond the range of a double or is nested deeper than 512;
/// `fault`, if given, then has the place, by characters counted from 1, and the reason.
std::optional<QVariant> parseJson(const QByteArray &json, QString *fault = nullptr);
