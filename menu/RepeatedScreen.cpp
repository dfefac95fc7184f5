#include "menu/RepeatedScreen.h"

bool isMeterButton(const QScriptValue &definition, const PropertyNames &names)
{
    return definition.property(names.type).toString().startsWith(QLatin1String("meterBtn"));
}

bool isCompartmentOrMeterButton(const QScriptValue &definition, const PropertyNames &names)
{
    return isMeterButton(definition, names)
        || definition.property(names.type).toString().startsWith(QLatin1String("compBtn"));
}

bool isRepeatedScreen(const QScriptValue &definition, const PropertyNames &names)
{
    const QScriptValue entries = definition.property(names.screens);
    return entries.isValid() && entries.property(names.length).toInteger() == 0
        && isCompartmentOrMeterButton(definition, names);
}

QString repeatedScreenName(const QString &css)
{
    return css + QLatin1String("ModifyDo");
}
