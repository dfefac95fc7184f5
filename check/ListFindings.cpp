#include "check/ListFindings.h"

#include "check/Answer.h"
#include "check/Numbers.h"
#include "json/Values.h"
#include "locale/CTranslationHandler.h"
#include "render/MenuView.h"
#include "render/ViewState.h"

#include <QSet>

#include <cmath>

namespace {

// The console searches from the front, so it never gets beyond the first of two equal values.
Findings databaseValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const int count = handler.valueCount(item);
    const QScriptValue values = item.definition.property(handler.names().dbValues);
    const int databaseCount = values.property(handler.names().length).toInt32();
    if (databaseCount != count) {
        return { error("value-count",
            "there are %1 \"values\" but %2 \"dbValues\"; give each text its value", count,
            databaseCount) };
    }
    Findings findings;
    QSet<QString> earlierTexts;
    for (int i = 0; i < count; ++i) {
        const QString text = textOf(handler.databaseValueAt(item, i));
        if (text.isEmpty()) {
            findings << warning("empty-value",
                "entry %1 of its \"dbValues\" is empty, and an empty value shows nothing; give the "
                "text a value that is none",
                i + 1);
        }
        const bool isMissing = !values.property(quint32(i)).isValid();
        if (isMissing || earlierTexts.contains(text)) {
            findings << error("equal-values",
                "\"dbValues\" has \"%1\" more than once, so only the first of its texts is ever "
                "shown; give each text a value of its own",
                text);
        }
        if (!isMissing)
            earlierTexts += text;
    }
    return findings;
}

// What the menu shows with "integer" for the choice at `i`, from 0.
QString integerText(const TreeViewItemHandler &handler, const TreeViewItem &item, int i)
{
    return handler.hasDatabaseValues(item) ? textOf(handler.databaseValueAt(item, i))
                                           : QString::number(i);
}

QString optionText(const TreeViewItemHandler &handler, const TreeViewItem &item, int i)
{
    return translate(textOf(handler.valueAt(item, i)));
}

Findings integerFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    if (!handler.isInteger(item))
        return {};
    for (int i = 0, count = handler.valueCount(item); i < count; ++i) {
        const QString shown = integerText(handler, item, i);
        const QString option = optionText(handler, item, i);
        if (shown != option) {
            return { warning("integer-list",
                "with \"integer\" the menu shows the value \"%1\" instead of its text \"%2\"; "
                "remove \"integer\"",
                shown, option) };
        }
    }
    return {};
}

// In the menu a text has the columns from the value's column on, in the dialog those of the box.
Findings widthFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const int columns = handler.isInteger(item) ? standardColumns / 2 - 2
                                                : standardColumns - valueColumn(standardColumns);
    Findings findings;
    for (int i = 0, count = handler.valueCount(item); i < count; ++i) {
        const QString text = optionText(handler, item, i);
        if (text.size() > columns) {
            findings << warning("wide-option",
                "the option text \"%1\" is wider than the %2 columns for it on a terminal of %3; "
                "shorten it",
                text, columns, standardColumns);
        }
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
    const Findings findings = integerFindings(handler, item) + widthFindings(handler, item);
    return handler.hasDatabaseValues(item) ? databaseValueFindings(handler, item) + findings
                                           : findings;
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
