#include "check/CountFindings.h"

#include "check/Answer.h"
#include "check/Numbers.h"
#include "menu/CountEntry.h"
#include "menu/RepeatedScreen.h"

#include <QScriptValueIterator>

namespace {

bool isCount(const QVariant &value)
{
    const double number = value.toDouble();
    return isNumber(value) && number >= 0 && number <= 999 && isWhole(number);
}

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
    const int place = positionOf(entry, screen, menu.handler.names());
    if (place < 0) {
        return { error("no-count", "it has no entry \"%1\", so there are none of these; add it",
            QLatin1String(entry.field)) };
    }
    if (hasValuesUpTo(place, menu, screen))
        return {};
    return { error("count-place",
        "a separator or button is before the entry \"%1\", and the console counts it when it looks "
        "up that number; move the entry to the front",
        QLatin1String(entry.field)) };
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
        "its number is not known and it stays empty; add the screen \"%1\" with the entry \"%2\"",
        QLatin1String(entry.screen), QLatin1String(entry.field)) };
}

Findings countScreenFindings(const LoadedMenu &menu, int screen)
{
    for (const CountEntry &entry : { compartmentCount, meterCount }) {
        if (menu.screens.find(QLatin1String(entry.screen)) == screen)
            return findingsOf(entry, menu, menu.screens.at(screen));
    }
    return {};
}

Findings countValueFindings(const QVariantList &answer, int place, const QString &field)
{
    if (place < answer.size() && isCount(answer.at(place)))
        return {};
    const QString found =
        place < answer.size() ? shownValue(answer.at(place)) : QStringLiteral("missing");
    return { error("count-value",
        "the number \"%1\" is %2, value %3 of the answer; answer a whole number from 0 to 999 "
        "there",
        field, found, place + 1) };
}
