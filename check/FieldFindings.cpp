#include "check/Findings.h"

#include "menu/RepeatedScreen.h"

namespace {

Findings listFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const int count = handler.valueCount(item);
    // A read-only item that shows the number itself needs no texts.
    if (count == 0 && (handler.inputKind(item) == DropdownInput || !handler.isInteger(item))) {
        return { error("no-values",
            QStringLiteral("a list without \"values\" shows nothing; list its texts")) };
    }
    const QScriptValue dbValues = item.definition.property(handler.names().dbValues);
    const int databaseCount = dbValues.property(handler.names().length).toInt32();
    if (!dbValues.isValid() || databaseCount == count)
        return {};
    return { error("value-count",
        QStringLiteral("%1 \"values\" stand against %2 \"dbValues\"; give each text its value")
            .arg(count)
            .arg(databaseCount)) };
}

Findings sliderFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const int lowest = handler.minimum(item);
    const int highest = handler.maximum(item);
    const int step = handler.step(item);
    if (lowest <= highest && step > 0)
        return {};
    return { error("slider",
        QStringLiteral(
            "a slider from %1 to %2 by %3 cannot move; correct \"min\", \"max\" or \"step\"")
            .arg(lowest)
            .arg(highest)
            .arg(step)) };
}

bool hasKnownInputType(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    return !item.definition.property(handler.names().inputType).isValid()
        || handler.inputKind(item) != NoInput;
}

bool hasKnownType(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const PropertyNames &names = handler.names();
    return !item.definition.property(names.type).isValid() || handler.typeKind(item) != NoType
        || isCompartmentButton(item.definition, names) || isMeterButton(item.definition, names);
}

} // namespace

Findings wordFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    Findings findings;
    if (!hasKnownInputType(handler, item)) {
        findings << error("unknown-input-type",
            QStringLiteral("\"inputType\" \"%1\" is unknown and leaves the item read-only; correct "
                           "the word")
                .arg(item.definition.property(handler.names().inputType).toString()));
    }
    if (!hasKnownType(handler, item)) {
        findings << warning("unknown-type",
            QStringLiteral("\"type\" \"%1\" is unknown and has no effect; correct the word")
                .arg(item.definition.property(handler.names().type).toString()));
    }
    return findings;
}

Findings valueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const InputKind kind = handler.inputKind(item);
    if (kind == DropdownInput || kind == SelectLabelInput)
        return listFindings(handler, item);
    if (!handler.isEditable(item))
        return {};
    if (kind == SliderInput)
        return sliderFindings(handler, item);
    return kind == EditInput ? ruleFindings(handler, item) : Findings();
}
