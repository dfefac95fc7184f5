#include "check/ValueFindings.h"

#include "check/Answer.h"
#include "check/EditFindings.h"
#include "check/ListFindings.h"
#include "check/ScreenFields.h"
#include "check/SliderFindings.h"
#include "check/TextFindings.h"
#include "locale/CTranslationHandler.h"

namespace {

Findings booleanValueFindings(const QVariant &value)
{
    if (value.type() == QVariant::Bool)
        return {};
    return { error("boolean-value",
        "%1 is no truth value, but shown as it is; answer true or false", shownValue(value)) };
}

QString labelOf(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const QString label = QLatin1Char('"') + translate(handler.labelKey(item)) + QLatin1Char('"');
    if (item.referringEntry.isValid())
        return label + QLatin1String(" (reference)");
    return handler.isVisible(item) ? label : label + QLatin1String(" (hidden)");
}

// Which entry each value falls to, as far as the first of them.
QString distribution(const QStringList &labels, const QVariantList &answer)
{
    constexpr int longest = 12;
    constexpr int longestValue = 60;
    const int count = qMax(labels.size(), answer.size());
    QStringList texts;
    for (int i = 0; i < qMin(count, longest); ++i) {
        texts += labels.value(i, QStringLiteral("no entry")) + QLatin1String(" = ")
            + (i < answer.size() ? shortened(shownValue(answer.at(i)), longestValue)
                                 : QStringLiteral("no value"));
    }
    if (count > longest)
        texts += QStringLiteral("...");
    return texts.join(QLatin1String(", "));
}

} // namespace

Findings lengthFindings(
    const TreeViewItemHandler &handler, const TreeViewItem &screen, const QVariantList &answer)
{
    QStringList labels;
    for (const TreeViewItem *const field : fieldsWithValue(handler, screen))
        labels += labelOf(handler, *field);
    const QString values = distribution(labels, answer);
    if (labels.size() > answer.size()) {
        return { error("few-values",
            "the answer has %1 of %2 values: from %3 on the entries stay empty and are written as "
            "null (%4); answer a value for each but separators and buttons, also for hidden fields "
            "and references",
            answer.size(), labels.size(), labels.at(answer.size()), values) };
    }
    if (labels.size() < answer.size()) {
        return { error("many-values",
            "the answer has %1 values instead of %2, so those after the surplus one are shown and "
            "written at the wrong entries (%3); answer a value for each but separators and buttons",
            answer.size(), labels.size(), values) };
    }
    return {};
}

Findings valueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    switch (handler.inputKind(item)) {
    case DropdownInput:
    case SelectLabelInput:
        // Without texts the number itself is shown.
        return handler.valueCount(item) > 0 ? listValueFindings(handler, item) : Findings();
    case BooleanInput:
        return booleanValueFindings(item.value);
    case SliderInput:
        return sliderValueFindings(handler, item);
    case EditInput:
        return textValueFindings(item.value) + editValueFindings(handler, item);
    case SeparatorInput:
    case ButtonInput:
    case LabelInput:
    case PlainInput:
    case NoInput:
        break;
    }
    return textValueFindings(item.value);
}
