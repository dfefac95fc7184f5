#include "menu/CountEntry.h"

#include <QScriptValueIterator>

int positionOf(const CountEntry &entry, const QScriptValue &screen, const PropertyNames &names)
{
    QScriptValueIterator candidate(screen.property(names.screens));
    for (int place = 0; candidate.hasNext(); ++place) {
        candidate.next();
        const QScriptValue key = candidate.value().property(names.i18n);
        if (key.toString() == QLatin1String(entry.field))
            return place;
    }
    return -1;
}
