// The screens of the menu definition, found by their css text.
#pragma once

#include "menu/PropertyNames.h"

#include <QHash>
#include <QScriptValue>

#include <vector>

class ScreenIndex {
public:
    /// Walks `settings` once. Anything but an array or an object has no screens.
    ScreenIndex(const QScriptValue &settings, const PropertyNames &names);

    /// The number of the first screen whose css is `css`; -1 when there is none.
    int find(const QString &css) const { return firstByCss.value(css, -1); }

    const QScriptValue &at(int number) const { return screens[size_t(number)]; }
    int size() const { return int(screens.size()); }

private:
    std::vector<QScriptValue> screens;
    QHash<QString, int> firstByCss;
};
