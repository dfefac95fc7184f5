#include "check/ReferenceFindings.h"

#include "menu/RepeatedScreen.h"

#include <QScriptValueIterator>

namespace {

// The css of every screen that the definition leads to.
QStringList references(const LoadedMenu &menu, const QScriptValue &definition)
{
    const PropertyNames &names = menu.handler.names();
    if (isRepeatedScreen(definition, names))
        return { repeatedScreenName(definition.property(names.css).toString()) };
    QStringList targets;
    QScriptValueIterator entry(definition.property(names.screens));
    while (entry.hasNext()) {
        entry.next();
        const QScriptValue css = entry.value().property(names.css);
        if (css.isValid())
            targets.push_back(css.toString());
    }
    return targets;
}

// The definitions of `item` and of the screens above it.
QSet<qint64> wayTo(const TreeViewItem *item)
{
    QSet<qint64> definitions;
    for (; item; item = item->parentItem)
        definitions += item->definition.objectId();
    return definitions;
}

} // namespace

Findings referenceFindings(const LoadedMenu &menu, const QScriptValue &definition)
{
    Findings findings;
    for (const QString &css : references(menu, definition)) {
        if (menu.screens.find(css) < 0) {
            findings << error(isRepeatedScreen(definition, menu.handler.names())
                    ? "no-template"
                    : "dangling-reference",
                "it leads to \"%1\", which does not exist; define that screen, or remove the "
                "reference",
                css);
        }
    }
    return findings;
}

Findings selfReferenceFindings(
    const LoadedMenu &menu, const TreeViewItem &item, QSet<QString> &known)
{
    const bool isField = item.parentItem && !item.referringEntry.isValid();
    if (isField) // whose entries are never shown
        return {};
    Findings findings;
    const QSet<qint64> way = wayTo(&item);
    for (const QString &css : references(menu, item.definition)) {
        const int screen = menu.screens.find(css);
        if (screen >= 0 && way.contains(menu.screens.at(screen).objectId())
            && !known.contains(css)) {
            known += css;
            findings << error("self-reference",
                "it leads back to \"%1\", which it is part of; remove the reference", css);
        }
    }
    return findings;
}

Findings unreachedFindings(const LoadedMenu &menu, int screen, const QSet<QString> &repeated)
{
    const QScriptValue css = menu.screens.at(screen).property(menu.handler.names().css);
    if (css.isValid() && menu.screens.find(css.toString()) != screen) {
        return { error("duplicate-css",
            "an earlier screen has the same css and is shown instead; rename this") };
    }
    // What is wrong then is reported of the list screen.
    if (repeated.contains(css.toString()))
        return {};
    return { warning("unreached",
        "nothing leads to this screen; name its css in the \"screens\" of another, or remove it") };
}
