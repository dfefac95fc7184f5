#include "check/BindingFindings.h"

#include <algorithm>

namespace {

// A visible field with a value. References have values, too, but seldom use them.
bool showsValue(const TreeViewItemHandler &handler, const TreeViewItem &child)
{
    return child.definition.isObject() && !child.referringEntry.isValid()
        && handler.isVisible(child) && handler.isValueBearing(child);
}

Findings readFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const auto &children = item.children;
    const bool hasBinding = handler.readBinding(item).has_value();
    const bool hasValues = std::any_of(children.cbegin(), children.cend(),
        [&handler](const auto &child) { return showsValue(handler, *child); });
    // Values are read when a screen is opened, and the start page always is.
    if (!item.parentItem && (hasBinding || hasValues)) {
        return { error("no-read",
            "the start page is never read, its fields stay empty; move them to a screen of their "
            "own") };
    }
    if (hasBinding && children.empty()) {
        return { warning("dead-read",
            "its \"ajax-read\" is never used, as there is nothing to open; add the items that it "
            "reads, or remove it") };
    }
    if (!hasBinding && hasValues) {
        return { error(
            "no-read", "its fields are never read and stay empty; add an \"ajax-read\"") };
    }
    return {};
}

} // namespace

Findings bindingFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    Findings findings = readFindings(handler, item);
    const auto isEditable = [&handler](const auto &child) {
        return handler.isVisible(*child) && handler.isEditable(*child);
    };
    if (!handler.writeBinding(item)
        && std::any_of(item.children.cbegin(), item.children.cend(), isEditable)) {
        findings << error("no-write",
            "what is edited in it is not stored; add an \"ajax-write\", or give its items "
            "\"remote\" 2");
    }
    return findings;
}

Findings hiddenReadFindings(const TreeViewItemHandler &handler, const TreeViewItem &screen)
{
    if (!handler.readBinding(screen))
        return {};
    return { warning("hidden-read",
        "its \"ajax-read\" is never used, as no reference shows it; give one \"remote\" 1, or the "
        "screen \"remote\" 0") };
}
