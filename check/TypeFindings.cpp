#include "check/TypeFindings.h"

#include "menu/RepeatedScreen.h"

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
