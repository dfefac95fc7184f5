// JSON text to variants.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

/// Where and why a text is no JSON.
struct JsonFault {
    int line = 0; ///< counted from 1
    int column = 0; ///< in characters, counted from 1
    QString reason;

    /// The fault as a report shows it.
    QString text() const
    {
        return QStringLiteral("line %1, column %2: %3").arg(line).arg(column).arg(reason);
    }
};

/// The value that `json` holds: any JSON value at the top level. Integers without fraction or
/// exponent become qlonglong, or qulonglong where they need it, other numbers double, null an
/// invalid variant; of equal keys the last counts. Nothing when the text is no JSON, has bytes
/// after the value, holds a number beyond the range of a double or is nested deeper than 512;
/// `fault`, if given, then has the reason.
std::optional<QVariant> parseJson(const QByteArray &json, JsonFault *fault = nullptr);
