#include "check/EditFindings.h"

#include "check/Answer.h"
#include "check/Numbers.h"
#include "json/Values.h"
#include "render/InputValidation.h"

#include <algorithm>

namespace {

bool isReserved(const QString &rule)
{
    return rule == QLatin1String("FEAT") || rule == QLatin1String("IPV4")
        || rule.startsWith(QLatin1String("DATE.")) || rule.startsWith(QLatin1String("GPS"));
}

QString whyNothingFits(const QString &rule, const InputRule &parts)
{
    if (isReserved(rule))
        return QStringLiteral("works in the web interface alone; \"remote\" 2 shows it read-only");
    if (parts.kind == InputRule::Refusing)
        return QStringLiteral("is unknown; use \"C\" or \"N\" and the length");
    if (parts.kind == InputRule::Number && rule.contains(QLatin1Char('.')))
        return QStringLiteral("is for decimals, which are refused; use a smaller unit");
    if (!parts.length)
        return QStringLiteral("has no whole number after its letter; write the length there");
    return QStringLiteral("leaves nothing to type; correct its length or the \"range\"");
}

// The ends of the range that are too long to be typed.
Findings roomFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    if (inputRule(handler, item).kind != InputRule::Number)
        return {};
    Findings findings;
    for (const int end : { 0, 1 }) {
        const QString number = QString::number(rangeValue(handler, item, end));
        if (!validateInput(handler, item, number)) {
            findings << warning("narrow-rule",
                "the rule \"%1\" has no room for %2 of its \"range\"; give it more characters, the "
                "sign counts too",
                validation(handler, item), number);
        }
    }
    return findings;
}

// True when there is a text that the rule accepts. If there is one, one of the shortest is: an
// empty one, 0, or an end of the range.
bool acceptsSomething(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const QStringList texts = { QString(), QStringLiteral("0"),
        QString::number(rangeValue(handler, item, 0)),
        QString::number(rangeValue(handler, item, 1)) };
    return std::any_of(texts.cbegin(), texts.cend(),
        [&](const QString &text) { return validateInput(handler, item, text); });
}

// The console takes what is missing for 0, and reads only arrays.
Findings rangeFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const QScriptValue range = item.definition.property(handler.names().range);
    const QScriptValue lowest = range.property(0);
    const QScriptValue highest = range.property(1);
    if (!range.isValid() || inputRule(handler, item).kind != InputRule::Number)
        return {};
    if (!isNumber(lowest) || !isNumber(highest)) {
        return { error("range",
            "its \"range\" is \"%1\" instead of the lowest and the highest number, and counts as "
            "%2 to %3; write them as [0, 500]",
            range.toString(), rangeValue(handler, item, 0), rangeValue(handler, item, 1)) };
    }
    if (isWhole(lowest.toNumber()) && isWhole(highest.toNumber()))
        return {};
    return { warning("range",
        "the fractions in its \"range\" %1 are cut off; write whole numbers, in a smaller unit if "
        "needed",
        range.toString()) };
}

} // namespace

Findings editFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    if (!hasValidation(handler, item)) {
        return { error(
            "no-validation", "without \"validation\" every text is refused; give it a rule") };
    }
    const QString rule = validation(handler, item);
    const InputRule parts = inputRule(handler, item);
    const Findings ofRange = parts.length ? rangeFindings(handler, item) : Findings();
    if (!ofRange.isEmpty())
        return ofRange;
    if (acceptsSomething(handler, item))
        return roomFindings(handler, item);
    if (parts.kind == InputRule::Number && parts.length && !hasRange(handler, item)) {
        return { error("no-range",
            "without \"range\" the rule \"%1\" refuses every text; give it the lowest and the "
            "highest number",
            rule) };
    }
    return { error(
        "dead-rule", "refuses every text: the rule \"%1\" %2", rule, whyNothingFits(rule, parts)) };
}

Findings editValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    if (!handler.isEditable(item) || !acceptsSomething(handler, item)
        || validateInput(handler, item, textOf(item.value)))
        return {};
    return { error("edit-value",
        "its rule \"%1\" refuses the value %2, which so cannot be confirmed unchanged; correct the "
        "value, the rule or the \"range\"",
        validation(handler, item), shownValue(item.value)) };
}
