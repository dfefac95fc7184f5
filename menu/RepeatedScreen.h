// Which screens of a menu definition are repeated for each compartment or meter.
#pragma once

#include "menu/PropertyNames.h"

#include <QScriptValue>

bool isMeterButton(const QScriptValue &definition, const PropertyNames &names);

bool isCompartmentOrMeterButton(const QScriptValue &definition, const PropertyNames &names);

/// True for a compartment or meter button whose `screens` has the length 0, as an object without a
/// "length" has; entries of such an object are ignored.
bool isRepeatedScreen(const QScriptValue &definition, const PropertyNames &names);

/// The css text of the screen that is repeated below the screen with `css`.
QString repeatedScreenName(const QString &css);
