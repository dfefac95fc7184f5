#include "check/WordFindings.h"

namespace {

Findings textFindings(const QString &name, const QString &words)
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

Findings wordFindings(
    const TreeViewItemHandler &handler, const CallWords &words, const TreeViewItem &item)
{
    const std::optional<QString> read = handler.readBinding(item);
    const std::optional<QString> write = handler.writeBinding(item);
    Findings findings;
    if (read)
        findings += textFindings(QStringLiteral("ajax-read"), *read);
    if (write)
        findings += textFindings(QStringLiteral("ajax-write"), *write);
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
