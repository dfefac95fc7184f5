#include "check/DeviceFindings.h"
#include "json/Values.h"
#include "render/InputValidation.h"
#include "render/MenuView.h"

#include <cmath>

namespace {

Findings listValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    if (handler.hasDatabaseValues(item)) {
        if (handler.indexOfDatabaseValue(item, item.value) >= 0)
            return {};
        return { error("list-value",
            QStringLiteral(
                "%1 is none of its \"dbValues\", so no text is shown, and Return in its list "
                "writes 0; correct the value or add it")
                .arg(shownValue(item.value))) };
    }
    const double place = std::round(item.value.toDouble());
    if (isNumber(item.value) && place >= 0 && place < handler.valueCount(item))
        return {};
    return { error("list-value",
        QStringLiteral(
            "%1 is no place in its \"values\", which go from 0 to %2; correct the value or "
            "add the text")
            .arg(shownValue(item.value))
            .arg(handler.valueCount(item) - 1)) };
}

Findings sliderValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const double value = item.value.toDouble();
    if (isNumber(item.value) && handler.minimum(item) <= value && value <= handler.maximum(item))
        return {};
    return { error("slider-value",
        QStringLiteral("%1 is no number from %2 to %3; correct the value, \"min\" or \"max\"")
            .arg(shownValue(item.value))
            .arg(handler.minimum(item))
            .arg(handler.maximum(item))) };
}

Findings editValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    if (!handler.isEditable(item) || !acceptsSomething(handler, item)
        || validateInput(handler, item, textOf(item.value)))
        return {};
    return { error("edit-value",
        QStringLiteral(
            "its rule \"%1\" refuses the value %2, which so cannot be confirmed unchanged; "
            "correct the value, the rule or the \"range\"")
            .arg(validation(handler, item), shownValue(item.value))) };
}

Findings textValueFindings(const QVariant &value)
{
    if (value.type() == QVariant::List || value.type() == QVariant::Map) {
        return { warning("unshowable",
            QStringLiteral(
                "the value %1 is no text or number and shows nothing; write it otherwise")
                .arg(shownValue(value))) };
    }
    const QString key = markedKey(textOf(value));
    const QString what = QStringLiteral("value");
    return key.isEmpty() ? characterFindings(what, textOf(value)) : keyFindings(what, key);
}

} // namespace

Findings storedValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    switch (handler.inputKind(item)) {
    case DropdownInput:
    case SelectLabelInput:
        // Without texts the number itself is shown.
        return handler.valueCount(item) > 0 ? listValueFindings(handler, item) : Findings();
    case BooleanInput:
        if (item.value.type() == QVariant::Bool)
            return {};
        return { error("boolean-value",
            QStringLiteral("%1 is no truth value, but shown as it is; answer true or false")
                .arg(shownValue(item.value))) };
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
