#include "menu/ScreenIndex.h"

#include <QScriptValueIterator>

ScreenIndex::ScreenIndex(const QScriptValue &settings, const PropertyNames &names)
{
    QScriptValueIterator entry(settings);
    while (entry.hasNext()) {
        entry.next();
        const QScriptValue screen = entry.value();
        const QScriptValue css = screen.property(names.css);
        if (css.isValid()) {
            const QString text = css.toString();
            if (!firstByCss.contains(text))
                firstByCss.insert(text, size());
        }
        screens.push_back(screen);
    }
}
