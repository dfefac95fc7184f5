#include "render/InputValidation.h"

#include "menu/Saturated.h"

#include <algorithm>

namespace {

bool isSignOrDigit(QChar character)
{
    return character == QLatin1Char('+') || character == QLatin1Char('-')
        || (character >= QLatin1Char('0') && character <= QLatin1Char('9'));
}

// The integer that `text` consists of; nothing for any other text and beyond 64 bits.
std::optional<qint64> strictInteger(const QString &text)
{
    bool isInteger = false;
    const qint64 number = text.toLongLong(&isInteger);
    // The conversion also takes blanks around the number and U+2212 as its minus sign.
    if (!isInteger || !std::all_of(text.cbegin(), text.cend(), isSignOrDigit))
        return std::nullopt;
    return number;
}

} // namespace

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
    const QScriptValue range = item.definition.property(handler.names().range);
    return saturated<qint64>(range.property(quint32(index)).toInteger());
}

InputRule inputRule(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const QString text = validation(handler, item);
    const bool isNumber = text.startsWith(QLatin1Char('N'));
    // Reserved words ("FEAT", "DATE.", "GPS", "IPV4") and unknown ones refuse every text.
    if (!isNumber && !text.startsWith(QLatin1Char('C')))
        return {};
    return { isNumber ? InputRule::Number : InputRule::Text, strictInteger(text.mid(1)) };
}

int fieldLength(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const InputRule rule = inputRule(handler, item);
    if (rule.kind == InputRule::Number && !hasRange(handler, item))
        return 0;
    return saturated<int>(rule.length.value_or(0));
}

bool validateInput(
    const TreeViewItemHandler &handler, const TreeViewItem &item, const QString &text)
{
    const InputRule rule = inputRule(handler, item);
    if (!rule.length || *rule.length < text.size())
        return false;
    if (rule.kind == InputRule::Text)
        return true;
    const std::optional<qint64> number = strictInteger(text);
    return number && hasRange(handler, item) && rangeValue(handler, item, 0) <= *number
        && *number <= rangeValue(handler, item, 1);
}
