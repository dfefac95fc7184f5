// What is wrong with a menu definition or with a device's answers.
#pragma once

#include <QString>
#include <QVector>

enum class Severity { Warning, Error };

struct Finding {
    Severity severity;
    QLatin1String name; ///< a definition allows an intended finding by it
    QString text; ///< what is wrong and what to do
};

using Findings = QVector<Finding>;

/// The beginning of a text that may be long, such as a value of the device.
inline QString shortened(const QString &text, int longest)
{
    return text.size() > longest ? text.left(longest) + QLatin1String("...") : text;
}

inline QString findingText(const QString &text)
{
    constexpr int longest = 500;
    return shortened(text, longest);
}

inline QString findingText(qint64 number)
{
    return QString::number(number);
}

template <typename... Parts>
Finding finding(Severity severity, const char *name, const char *text, const Parts &...parts)
{
    const QString pattern = QString::fromUtf8(text);
    if constexpr (sizeof...(parts) == 0)
        return { severity, QLatin1String(name), pattern };
    else // at once, as a part may hold a "%1" itself
        return { severity, QLatin1String(name), pattern.arg(findingText(parts)...) };
}

/// Something that does not work; `parts`, texts and integers, replace %1, %2, … in `text`.
template <typename... Parts>
Finding error(const char *name, const char *text, const Parts &...parts)
{
    return finding(Severity::Error, name, text, parts...);
}

/// Something that is shown wrongly or has no effect; `parts` as for an error.
template <typename... Parts>
Finding warning(const char *name, const char *text, const Parts &...parts)
{
    return finding(Severity::Warning, name, text, parts...);
}
