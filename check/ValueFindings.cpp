#include "check/ValueFindings.h"

#include "check/Answer.h"
#include "check/EditFindings.h"
#include "check/ListFindings.h"
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

} // namespace

Findings lengthFindings(
    const TreeViewItemHandler &handler, const TreeViewItem &screen, const QVariantList &answer)
{
    int entries = 0;
    QString firstEmpty;
    for (const auto &child : screen.children) {
        if (handler.isValueBearing(*child) && entries++ == answer.size())
            firstEmpty = translate(handler.labelKey(*child));
    }
    if (entries > answer.size()) {
        return { error("few-values",
            "the answer has %1 of %2 values: from \"%3\" on the entries stay empty and are written "
            "as null; answer a value for each but separators and buttons",
            answer.size(), entries, firstEmpty) };
    }
    if (entries < answer.size()) {
        return { error("many-values",
            "the answer has %1 values instead of %2, so those after the surplus one are shown and "
            "written at the wrong entries; answer a value for each but separators and buttons",
            answer.size(), entries) };
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
