#include "check/EntryFindings.h"

#include "check/Entries.h"

namespace {

Findings objectFindings(const QVector<QScriptValue> &entries, const char *list)
{
    Findings findings;
    for (int i = 0; i < entries.size(); ++i) {
        if (!entries.at(i).isObject()) {
            findings << error("entry-type",
                "entry %1 of \"%2\" is no object but \"%3\"; write a field, or a reference such as "
                "{ css: \"btnTruck\" }",
                i + 1, QLatin1String(list), entries.at(i).toString());
        }
    }
    return findings;
}

} // namespace

Findings settingsFindings(const LoadedMenu &menu)
{
    return objectFindings(entriesOf(menu.settings, menu.handler.names()), "settings");
}

Findings entryFindings(const LoadedMenu &menu, const QScriptValue &definition)
{
    const PropertyNames &names = menu.handler.names();
    const QScriptValue screens = definition.property(names.screens);
    if (screens.isString() || screens.isNumber() || screens.isBool()) {
        return { error("entry-type",
            "its \"screens\" is no array but \"%1\"; write [ and ] around its entries",
            screens.toString()) };
    }
    return objectFindings(entriesOf(screens, names), "screens");
}

Findings fieldEntryFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const QScriptValue screens = item.definition.property(handler.names().screens);
    const bool isField = item.parentItem && !item.referringEntry.isValid();
    if (!isField || !hasEntries(screens, handler.names()))
        return {};
    return { error("entry-screens",
        "its \"screens\" are never shown, as it is a field; define a screen with a css, and refer "
        "to that") };
}
