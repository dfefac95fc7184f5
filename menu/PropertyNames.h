// The property names of the menu definition, interned once in the script engine.
#pragma once

#include <QScriptEngine>
#include <QScriptString>

class PropertyNames {
    QScriptEngine &engine;
    QScriptString handle(const char *name) const
    {
        return engine.toStringHandle(QLatin1String(name));
    }

public:
    explicit PropertyNames(QScriptEngine &engine)
        : engine(engine)
    {
    }

    const QScriptString accessLevel = handle("accessLvl");
    const QScriptString css = handle("css");
    const QScriptString dbValues = handle("dbValues");
    const QScriptString i18n = handle("i18n");
    const QScriptString inputType = handle("inputType");
    const QScriptString integer = handle("integer");
    const QScriptString length = handle("length");
    const QScriptString maximum = handle("max");
    const QScriptString minimum = handle("min");
    const QScriptString range = handle("range");
    const QScriptString read = handle("ajax-read");
    const QScriptString remote = handle("remote");
    const QScriptString screens = handle("screens");
    const QScriptString step = handle("step");
    const QScriptString type = handle("type");
    const QScriptString validation = handle("validation");
    const QScriptString values = handle("values");
    const QScriptString write = handle("ajax-write");
};
