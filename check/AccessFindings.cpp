#include "check/AccessFindings.h"

#include "check/Numbers.h"
#include "menu/RepeatedScreen.h"

#include <algorithm>

namespace {

// A repeated screen has the list that it is in as its reference.
QScriptValue referenceOf(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const bool isReference = !isRepeatedScreen(item.referringEntry, handler.names());
    return isReference ? item.referringEntry : QScriptValue();
}

Findings levelFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const PropertyNames &names = handler.names();
    const QScriptValue level = item.definition.property(names.accessLevel);
    const bool isScreen = !item.parentItem || item.referringEntry.isValid();
    if ((isScreen && level.isValid())
        || referenceOf(handler, item).property(names.accessLevel).isValid()) {
        return { error("access-level",
            "the \"accessLvl\" of a screen or a reference protects nothing; give it to each field "
            "that it is for") };
    }
    if (!level.isValid() || !hasDialog(handler.inputKind(item)))
        return {};
    if (!isNumber(level)) {
        return { error("access-level",
            "the \"accessLvl\" %1 is no number and protects nothing; write 6", level.toString()) };
    }
    if (level.toNumber() <= TreeViewItemHandler::openAccessLevel)
        return {};
    return { warning("access-level",
        "no state of the seal reaches the \"accessLvl\" %1, so nobody can change this; write %2, "
        "or "
        "\"remote\" 2",
        level.toString(), TreeViewItemHandler::openAccessLevel) };
}

} // namespace

Findings accessFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    Findings findings = levelFindings(handler, item);
    const QScriptValue ownRemote = item.definition.property(handler.names().remote);
    const QScriptValue remote = referenceOf(handler, item).property(handler.names().remote);
    for (const QScriptValue &value : { ownRemote, remote }) {
        if (value.isValid() && qIsNaN(value.toNumber())) {
            findings << warning("remote",
                "the \"remote\" %1 is no number and has no effect; write 0, 1 or 2",
                value.toString());
        }
    }
    if (remote.isValid() && remote.toNumber() == 0) {
        findings << warning("remote",
            "the \"remote\" 0 of the reference hides nothing, as the screen has a \"remote\" of "
            "its "
            "own or no \"type\"; write it at the screen");
    }
    const bool hasEditable = std::any_of(item.children.cbegin(), item.children.cend(),
        [&handler](const auto &child) { return handler.isEditable(*child); });
    if (hasEditable && (ownRemote.toNumber() == 2 || remote.toNumber() == 2)) {
        findings << warning("remote",
            "the \"remote\" 2 of a screen or a reference leaves its fields changeable; give it to "
            "each field");
    }
    return findings;
}
