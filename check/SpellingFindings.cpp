#include "check/SpellingFindings.h"

#include "check/EditDistance.h"
#include "check/Numbers.h"
#include "menu/RepeatedScreen.h"

#include <QScriptValueIterator>

#include <algorithm>
#include <array>

namespace {

enum class Form { Text, Number, Flag, List };

struct Attribute {
    QString name;
    Form form;
};

using Attributes = QVector<Attribute>;

Attributes attributesOfReferences(const PropertyNames &names)
{
    return { { names.css, Form::Text }, { names.i18n, Form::Text }, { names.type, Form::Text },
        { names.remote, Form::Number } };
}

// What the console reads from a screen or field of this kind.
Attributes attributesOf(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const PropertyNames &names = handler.names();
    Attributes attributes = attributesOfReferences(names);
    attributes += { { names.inputType, Form::Text }, { names.accessLevel, Form::Number },
        { names.screens, Form::List }, { names.read, Form::Text }, { names.write, Form::Text },
        { QStringLiteral("checkIgnore"), Form::Text } };
    const InputKind kind = handler.inputKind(item);
    if (isList(kind)) {
        attributes += { { names.values, Form::List }, { names.dbValues, Form::List },
            { names.integer, Form::Flag } };
    } else if (kind == SliderInput) {
        attributes += { { names.minimum, Form::Number }, { names.maximum, Form::Number },
            { names.step, Form::Number } };
    } else if (kind == EditInput) {
        attributes += { { names.validation, Form::Text }, { names.range, Form::List } };
    }
    return attributes;
}

QString simplified(const QString &name)
{
    return name.toLower().remove(QLatin1Char('-')).remove(QLatin1Char('_'));
}

bool hasForm(const QScriptValue &value, Form form)
{
    switch (form) {
    case Form::Text:
        return value.isString();
    case Form::Number:
        return isNumber(value);
    case Form::Flag:
        return value.isBool();
    case Form::List:
        return value.isObject();
    }
    return false;
}

// Words that definitions use for other things and that are close to "remote", "step", "type" and
// "values".
bool isOtherWord(const QString &name)
{
    constexpr std::array<const char *, 4> words = { "remove", "stop", "tyre", "valves" };
    return std::any_of(words.cbegin(), words.cend(),
        [&name](const char *word) { return name == QLatin1String(word); });
}

// The web interface has attributes of its own. So a short name is misspelled only in its case,
// hyphens or underscores, and the value must be of the kind that the console expects.
bool isMisspelled(const QString &name, const QScriptValue &value, const Attribute &attribute)
{
    constexpr int shortWord = 3;
    constexpr int longWord = 9;
    const QString meant = simplified(attribute.name);
    const QString written = simplified(name);
    if (value.isFunction() || isOtherWord(written))
        return false;
    if (written == meant)
        return true;
    const int tolerance = meant.size() <= shortWord ? 0 : meant.size() < longWord ? 1 : 2;
    return hasForm(value, attribute.form) && qAbs(meant.size() - written.size()) <= tolerance
        && editDistance(written, meant) <= tolerance;
}

Findings misspellings(const QScriptValue &definition, const Attributes &attributes)
{
    Findings findings;
    QScriptValueIterator property(definition);
    while (definition.isObject() && property.hasNext()) {
        property.next();
        for (const Attribute &attribute : attributes) {
            if (!definition.property(attribute.name).isValid()
                && isMisspelled(property.name(), property.value(), attribute)) {
                findings << warning("misspelled-attribute", "\"%1\" has no effect; write \"%2\"",
                    property.name(), attribute.name);
            }
        }
    }
    return findings;
}

} // namespace

Findings spellingFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    Findings findings = misspellings(item.definition, attributesOf(handler, item));
    // A repeated screen has the list that it is in as its reference.
    if (!isRepeatedScreen(item.referringEntry, handler.names()))
        findings += misspellings(item.referringEntry, attributesOfReferences(handler.names()));
    return findings;
}

Findings typeFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const QScriptValue inputType = item.definition.property(handler.names().inputType);
    const QScriptValue type = item.definition.property(handler.names().type);
    Findings findings;
    if (inputType.isValid() && handler.inputKind(item) == NoInput) {
        findings << error("unknown-input-type",
            "\"inputType\" \"%1\" is unknown and leaves the item read-only; correct the word",
            inputType.toString());
    }
    if (type.isValid() && handler.typeKind(item) == NoType
        && !isCompartmentOrMeterButton(item.definition, handler.names())) {
        findings << warning("unknown-type",
            "\"type\" \"%1\" is unknown and has no effect; correct the word", type.toString());
    }
    return findings;
}
