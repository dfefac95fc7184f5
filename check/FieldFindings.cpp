#include "check/Findings.h"

#include "json/Values.h"
#include "menu/RepeatedScreen.h"

namespace {

// The console searches from the front, so it never gets beyond the first of two equal values.
Findings databaseValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const int count = handler.valueCount(item);
    const int databaseCount = item.definition.property(handler.names().dbValues)
                                  .property(handler.names().length)
                                  .toInt32();
    if (databaseCount != count) {
        return { error("value-count",
            QStringLiteral("there are %1 \"values\" but %2 \"dbValues\"; give each text its value")
                .arg(count)
                .arg(databaseCount)) };
    }
    Findings findings;
    for (int i = 0; i < count; ++i) {
        const QVariant value = handler.databaseValueAt(item, i);
        if (handler.indexOfDatabaseValue(item, value) != i) {
            findings << error("equal-values",
                QStringLiteral("\"dbValues\" has \"%1\" more than once, so only the first of its "
                               "texts is ever shown; give each text a value of its own")
                    .arg(textOf(value)));
        }
    }
    if (handler.isInteger(item)) {
        findings << warning("integer-list",
            QStringLiteral("with \"integer\" it shows the value instead of the text for it; remove "
                           "\"integer\" or \"dbValues\""));
    }
    return findings;
}

Findings listFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    // A read-only item that shows the number itself needs no texts.
    if (handler.valueCount(item) == 0
        && (handler.inputKind(item) == DropdownInput || !handler.isInteger(item))) {
        return { error("no-values",
            QStringLiteral("a list without \"values\" shows nothing; list its texts")) };
    }
    return handler.hasDatabaseValues(item) ? databaseValueFindings(handler, item) : Findings();
}

Findings sliderFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const int lowest = handler.minimum(item);
    const int highest = handler.maximum(item);
    const int step = handler.step(item);
    if (highest < lowest || step <= 0) {
        return { error("slider",
            QStringLiteral(
                "a slider from %1 to %2 by %3 cannot move; correct \"min\", \"max\" or \"step\"")
                .arg(lowest)
                .arg(highest)
                .arg(step)) };
    }
    const qint64 remainder = (qint64(highest) - lowest) % step;
    if (remainder == 0)
        return {};
    return { warning("slider-step",
        QStringLiteral("steps of %1 from %2 lead to %3, not to \"max\" %4; correct one of them")
            .arg(step)
            .arg(lowest)
            .arg(highest - remainder)
            .arg(highest)) };
}

bool hasKnownInputType(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    return !item.definition.property(handler.names().inputType).isValid()
        || handler.inputKind(item) != NoInput;
}

bool hasInterfaceCss(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const QString css = item.definition.property(handler.names().css).toString();
    bool isFound = false;
    for (int kind = SpdInterface; wordsOf(InterfaceKind(kind)).css && !isFound; ++kind)
        isFound = css == QLatin1String(wordsOf(InterfaceKind(kind)).css);
    return isFound;
}

bool hasKnownType(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const PropertyNames &names = handler.names();
    return !item.definition.property(names.type).isValid() || handler.typeKind(item) != NoType
        || isCompartmentOrMeterButton(item.definition, names);
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
    if (hasInterfaceCss(handler, item) && handler.typeKind(item) != StatusType) {
        findings << error("interface-type",
            QStringLiteral("its css is that of an interface screen, which opens only with \"type\" "
                           "\"status\"; add that"));
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
