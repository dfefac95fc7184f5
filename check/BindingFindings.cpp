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

Findings emptyOrQuotedFindings(const QString &name, const QString &words)
{
    if (words.trimmed().isEmpty()) {
        return { error("empty-words",
            "its \"%1\" is empty, so the tool is run without any word; write the words, or remove "
            "it",
            name) };
    }
    if (words.contains(QLatin1Char('"')) || words.contains(QLatin1Char('\''))) {
        return { error("quotes",
            "the words are split at blanks, and the quotes in <%1> reach the tool; remove them",
            words) };
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

Findings wordFindings(
    const TreeViewItemHandler &handler, const CallWords &words, const TreeViewItem &item)
{
    const std::optional<QString> read = handler.readBinding(item);
    const std::optional<QString> write = handler.writeBinding(item);
    Findings findings;
    if (read)
        findings += emptyOrQuotedFindings(QStringLiteral("ajax-read"), *read);
    if (write)
        findings += emptyOrQuotedFindings(QStringLiteral("ajax-write"), *write);
    if (!read || read->trimmed().isEmpty())
        return findings;
    if (write && read->simplified() == write->simplified()) {
        findings << error("same-words",
            "its \"ajax-read\" and \"ajax-write\" are the same, so reading runs what writes; give "
            "each words of its own");
    } else if (words.mayWrite({ *read })) {
        findings << error("exchanged-words",
            "the words <%1> of its \"ajax-read\" begin as those with which other screens write; "
            "correct them, or exchange them with \"ajax-write\"",
            *read);
    }
    return findings;
}
