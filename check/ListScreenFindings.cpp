#include "check/ListScreenFindings.h"

#include "check/Entries.h"
#include "menu/RepeatedScreen.h"

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
        "empty "
        "its \"screens\"",
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
