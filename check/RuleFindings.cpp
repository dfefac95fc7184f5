#include "check/Findings.h"

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
                QStringLiteral("the rule \"%1\" has no room for %2 of its \"range\"; give it more "
                               "characters, the sign counts too")
                    .arg(validation(handler, item), number));
        }
    }
    return findings;
}

} // namespace

// The shortest texts that a rule can take: none, or the number of the range next to zero.
bool acceptsSomething(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const QStringList texts = { QString(), QStringLiteral("0"),
        QString::number(rangeValue(handler, item, 0)),
        QString::number(rangeValue(handler, item, 1)) };
    return std::any_of(texts.cbegin(), texts.cend(),
        [&](const QString &text) { return validateInput(handler, item, text); });
}

Findings ruleFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    if (!hasValidation(handler, item)) {
        return { error("no-validation",
            QStringLiteral("without \"validation\" every text is refused; give it a rule")) };
    }
    if (acceptsSomething(handler, item))
        return roomFindings(handler, item);
    const QString rule = validation(handler, item);
    const InputRule parts = inputRule(handler, item);
    if (parts.kind == InputRule::Number && parts.length && !hasRange(handler, item)) {
        return { error("no-range",
            QStringLiteral("without \"range\" the rule \"%1\" refuses every text; give it the "
                           "lowest and the highest number")
                .arg(rule)) };
    }
    return { error("dead-rule",
        QStringLiteral("refuses every text: the rule \"%1\" %2")
            .arg(rule, whyNothingFits(rule, parts))) };
}
