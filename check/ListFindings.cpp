#include "check/ListFindings.h"

#include "check/Answer.h"
#include "json/Values.h"

#include <cmath>

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
            "there are %1 \"values\" but %2 \"dbValues\"; give each text its value", count,
            databaseCount) };
    }
    Findings findings;
    for (int i = 0; i < count; ++i) {
        const QVariant value = handler.databaseValueAt(item, i);
        if (handler.indexOfDatabaseValue(item, value) != i) {
            findings << error("equal-values",
                "\"dbValues\" has \"%1\" more than once, so only the first of its texts is ever "
                "shown; give each text a value of its own",
                textOf(value));
        }
    }
    if (handler.isInteger(item)) {
        findings << warning("integer-list",
            "with \"integer\" it shows the value instead of the text for it; remove \"integer\" or "
            "\"dbValues\"");
    }
    return findings;
}

} // namespace

Findings listFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    // A read-only item that shows the number itself needs no texts.
    if (handler.valueCount(item) == 0
        && (handler.inputKind(item) == DropdownInput || !handler.isInteger(item))) {
        return { error("no-values", "a list without \"values\" shows nothing; list its texts") };
    }
    return handler.hasDatabaseValues(item) ? databaseValueFindings(handler, item) : Findings();
}

Findings listValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    if (handler.hasDatabaseValues(item)) {
        if (handler.indexOfDatabaseValue(item, item.value) >= 0)
            return {};
        return { error("list-value",
            "%1 is none of its \"dbValues\", so no text is shown, and Return in its list writes 0; "
            "correct the value or add it",
            shownValue(item.value)) };
    }
    const double place = std::round(item.value.toDouble());
    if (isNumber(item.value) && place >= 0 && place < handler.valueCount(item))
        return {};
    return { error("list-value",
        "%1 is no place in its \"values\", which go from 0 to %2; correct the value or add the "
        "text",
        shownValue(item.value), handler.valueCount(item) - 1) };
}
