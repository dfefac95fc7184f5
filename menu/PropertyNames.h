// The property names of the menu definition, interned once in the script engine.
#pragma once

#include <QScriptEngine>
#include <QScriptString>

struct PropertyNames {
    explicit PropertyNames(QScriptEngine &engine)
        : accessLevel(engine.toStringHandle(QStringLiteral("accessLvl")))
        , css(engine.toStringHandle(QStringLiteral("css")))
        , dbValues(engine.toStringHandle(QStringLiteral("dbValues")))
        , i18n(engine.toStringHandle(QStringLiteral("i18n")))
        , inputType(engine.toStringHandle(QStringLiteral("inputType")))
        , integer(engine.toStringHandle(QStringLiteral("integer")))
        , length(engine.toStringHandle(QStringLiteral("length")))
        , maximum(engine.toStringHandle(QStringLiteral("max")))
        , minimum(engine.toStringHandle(QStringLiteral("min")))
        , range(engine.toStringHandle(QStringLiteral("range")))
        , read(engine.toStringHandle(QStringLiteral("ajax-read")))
        , remote(engine.toStringHandle(QStringLiteral("remote")))
        , screens(engine.toStringHandle(QStringLiteral("screens")))
        , step(engine.toStringHandle(QStringLiteral("step")))
        , type(engine.toStringHandle(QStringLiteral("type")))
        , validation(engine.toStringHandle(QStringLiteral("validation")))
        , values(engine.toStringHandle(QStringLiteral("values")))
        , write(engine.toStringHandle(QStringLiteral("ajax-write")))
    {
    }

    const QScriptString accessLevel;
    const QScriptString css;
    const QScriptString dbValues;
    const QScriptString i18n;
    const QScriptString inputType;
    const QScriptString integer;
    const QScriptString length;
    const QScriptString maximum;
    const QScriptString minimum;
    const QScriptString range;
    const QScriptString read;
    const QScriptString remote;
    const QScriptString screens;
    const QScriptString step;
    const QScriptString type;
    const QScriptString validation;
    const QScriptString values;
    const QScriptString write;
};
