#include "render/InputValidation.h"

#include "render/Saturated.h"

#include <algorithm>
#include <limits>

namespace {

bool isDecimalRule(const QString &rule)
{
    return rule.contains(QLatin1Char('.'));
}

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

} // namespace

std::optional<qint64> strictInteger(const QString &text)
{
    const bool isSigned = text.startsWith(QLatin1Char('-')) || text.startsWith(QLatin1Char('+'));
    const QString digits = text.mid(isSigned ? 1 : 0);
    if (digits.isEmpty() || !std::all_of(digits.cbegin(), digits.cend(), isDigit))
        return std::nullopt;
    bool fits = false;
    const qint64 number = text.toLongLong(&fits);
    return fits ? std::make_optional(number) : std::nullopt;
}

bool hasValidation(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    return item.definition.property(handler.names().validation).isValid();
}

QString validation(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    return item.definition.property(handler.names().validation).toString();
}

bool hasRange(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    return item.definition.property(handler.names().range).isValid();
}

qint64 rangeValue(const TreeViewItemHandler &handler, const TreeViewItem &item, int index)
{
    using Limits = std::numeric_limits<qint64>;
    const double number =
        item.definition.property(handler.names().range).property(quint32(index)).toInteger();
    if (number >= double(Limits::max()))
        return Limits::max();
    return number <= double(Limits::min()) ? Limits::min() : qint64(number);
}

int fieldLength(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const QString rule = validation(handler, item);
    const bool isNumber = rule.startsWith(QLatin1Char('N'));
    if (!isNumber && !rule.startsWith(QLatin1Char('C')))
        return 0;
    // A decimal rule counts its digits with the point, which is no integer.
    if (isNumber && (isDecimalRule(rule) || !hasRange(handler, item)))
        return 0;
    return saturated(strictInteger(rule.mid(1)).value_or(0));
}

bool validateInput(
    const TreeViewItemHandler &handler, const TreeViewItem &item, const QString &text)
{
    if (!hasValidation(handler, item))
        return false;
    const QString rule = validation(handler, item);
    const bool isNumber = rule.startsWith(QLatin1Char('N'));
    // Reserved words ("FEAT", "DATE.", "GPS", "IPV4") and unknown ones refuse every text.
    if (!isNumber && !rule.startsWith(QLatin1Char('C')))
        return false;
    const std::optional<qint64> length = strictInteger(rule.mid(1));
    if (!length || *length < text.size())
        return false;
    if (!isNumber)
        return true;
    // A decimal rule never gets here: its digit counts contain the point, so they are no integers.
    const std::optional<qint64> number = strictInteger(text);
    return number && hasRange(handler, item) && rangeValue(handler, item, 0) <= *number
        && *number <= rangeValue(handler, item, 1);
}
