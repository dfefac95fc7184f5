#include "check/EntryFindings.h"

#include "check/Entries.h"
#include "menu/RepeatedScreen.h"

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

Findings listScreenFindings(const LoadedMenu &menu, const TreeViewItem &item)
{
    const PropertyNames &names = menu.handler.names();
    if (!item.referringEntry.isValid() || !isCompartmentOrMeterButton(item.definition, names))
        return {};
    const QScriptValue entries = item.definition.property(names.screens);
    const QString repeated = repeatedScreenName(item.definition.property(names.css).toString());
    if (isRepeatedScreen(item.definition, names)) {
        if (!hasEntries(entries, names))
            return {};
        return { warning("list-screen",
            "the entries of its \"screens\" are ignored, as a list of compartments or meters "
            "repeats the screen \"%1\"; move them there",
            repeated) };
    }
    if (!entries.isValid()) {
        return { error("list-screen",
            "a list of compartments or meters without \"screens\" stays empty; add \"screens\": "
            "[]") };
    }
    if (menu.screens.find(repeated) < 0)
        return {};
    return { error("list-screen",
        "it shows its own entries, and never the screen \"%1\" for each compartment or meter; "
        "empty its \"screens\"",
        repeated) };
}

QSet<QString> repeatedScreens(const LoadedMenu &menu)
{
    const PropertyNames &names = menu.handler.names();
    QSet<QString> repeated;
    for (int i = 0; i < menu.screens.size(); ++i) {
        const QScriptValue &screen = menu.screens.at(i);
        if (isCompartmentOrMeterButton(screen, names))
            repeated += repeatedScreenName(screen.property(names.css).toString());
    }
    return repeated;
}
