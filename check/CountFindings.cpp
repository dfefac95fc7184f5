#include "check/Findings.h"
#include "menu/CountEntry.h"
#include "menu/RepeatedScreen.h"

#include <QScriptValueIterator>

namespace {

bool hasValuesUpTo(int place, const LoadedMenu &menu, const QScriptValue &screen)
{
    QScriptValueIterator entry(screen.property(menu.handler.names().screens));
    for (int i = 0; i < place; ++i) {
        entry.next();
        const TreeViewItem item(entry.value(), {}, nullptr, -1, 0);
        if (!menu.handler.isValueBearing(item))
            return false;
    }
    return true;
}

Findings findingsOf(const CountEntry &entry, const LoadedMenu &menu, const QScriptValue &screen)
{
    const int place = placeOf(entry, screen, menu.handler.names());
    if (place < 0) {
        return { error("no-count",
            QStringLiteral("it has no entry \"%1\", so there are none of these; add it")
                .arg(QLatin1String(entry.field))) };
    }
    if (hasValuesUpTo(place, menu, screen))
        return {};
    return { error("count-place",
        QStringLiteral(
            "a separator or button is before the entry \"%1\", and the console counts it "
            "when it looks up that number; move the entry to the front")
            .arg(QLatin1String(entry.field))) };
}

} // namespace

Findings listCountFindings(const LoadedMenu &menu, const TreeViewItem &item)
{
    const PropertyNames &names = menu.handler.names();
    const CountEntry &entry = isMeterButton(item.definition, names) ? meterCount : compartmentCount;
    if (!isRepeatedScreen(item.definition, names)
        || menu.screens.find(QLatin1String(entry.screen)) >= 0)
        return {};
    return { error("no-count",
        QStringLiteral("its number is not known and it stays empty; add the screen \"%1\" with the "
                       "entry \"%2\"")
            .arg(QLatin1String(entry.screen), QLatin1String(entry.field))) };
}

Findings countScreenFindings(const LoadedMenu &menu, int screen)
{
    for (const CountEntry &entry : { compartmentCount, meterCount }) {
        if (menu.screens.find(QLatin1String(entry.screen)) == screen)
            return findingsOf(entry, menu, menu.screens.at(screen));
    }
    return {};
}
