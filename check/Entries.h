// The entries of "settings" and "screens".
#pragma once

#include "menu/PropertyNames.h"

#include <QScriptValueIterator>
#include <QVector>

/// The elements of an array, or the members of an object, in the console's order.
inline QVector<QScriptValue> entriesOf(const QScriptValue &list, const PropertyNames &names)
{
    QVector<QScriptValue> entries;
    QScriptValueIterator entry(list);
    while (entry.hasNext()) {
        entry.next();
        if (entry.scriptName() != names.length || entry.value().isObject())
            entries += entry.value();
    }
    return entries;
}

inline bool hasEntries(const QScriptValue &list, const PropertyNames &names)
{
    return list.isArray() ? list.property(names.length).toInteger() > 0
                          : !entriesOf(list, names).isEmpty();
}
