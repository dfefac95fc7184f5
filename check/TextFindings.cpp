#include "check/TextFindings.h"

#include "check/Answer.h"
#include "json/Values.h"
#include "locale/CTranslationHandler.h"
#include "render/ForeignText.h"
#include "render/MenuView.h"
#include "render/ViewState.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

bool hasLetter(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isLetter(); });
}

bool isTranslated(const QString &key)
{
    const QVariantMap table = CTranslationHandler::instance().translationMap(QStringLiteral("en"));
    return !textOf(table.value(key)).isEmpty();
}

bool canBeShown(uint character)
{
    const QString text = QString::fromUcs4(&character, 1);
    // What is not UTF-8 is reported of its file or answer.
    return (character <= 0xff && printable(text) == text)
        || character == QChar::ReplacementCharacter;
}

Findings characterFindings(const QString &what, const QString &text)
{
    const QVector<uint> characters = text.toUcs4();
    const auto *const bad = std::find_if_not(characters.cbegin(), characters.cend(), canBeShown);
    if (bad == characters.cend())
        return {};
    return { warning("unshowable",
        "the %1 \"%2\" has the character U+%3, which a Latin-1 terminal cannot show; write it "
        "otherwise",
        what, text, QString::number(*bad, 16).toUpper().rightJustified(4, QLatin1Char('0'))) };
}

// `what` names the text in the report, for example "label".
Findings keyFindings(const QString &what, const QString &key)
{
    Findings findings;
    // Numbers and signs stand for themselves.
    if (hasLetter(key) && !isTranslated(key)) {
        findings << warning("untranslated",
            "the %1 \"%2\" has no translation; add it to the English table", what, key);
    }
    return findings + characterFindings(what, translate(key));
}

// Options may be plain texts, which are shown as they are.
bool couldBeKey(const QString &text)
{
    static const QRegularExpression key(QStringLiteral("^[a-z][a-z0-9_]*$"));
    return key.match(text).hasMatch();
}

Findings optionFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const QString what = QStringLiteral("option text");
    Findings findings;
    for (int i = 0, count = handler.valueCount(item); i < count; ++i) {
        const QString text = textOf(handler.valueAt(item, i));
        findings +=
            couldBeKey(text) ? keyFindings(what, text) : characterFindings(what, translate(text));
    }
    return findings;
}

} // namespace

Findings textFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    Findings findings;
    const InputKind kind = handler.inputKind(item);
    const QString key = handler.labelKey(item);
    findings += keyFindings(QStringLiteral("label"), key);
    if (key.isEmpty() && kind != SeparatorInput)
        findings << warning("no-label", "it has no label; give it an \"i18n\"");

    const QString line = menuLines(handler, item, standardColumns).value(0);
    const int surplus = line.size() - valueColumn(standardColumns);
    if (surplus > 0 && kind != SeparatorInput && kind != ButtonInput) {
        findings << warning("wide-label",
            "its label reaches %1 columns into the value on a terminal of %2 columns; shorten it",
            surplus, standardColumns);
    }
    if (isList(kind))
        findings += optionFindings(handler, item);
    return findings;
}

Findings textValueFindings(const QVariant &value)
{
    if (value.type() == QVariant::List || value.type() == QVariant::Map) {
        return { warning("unshowable",
            "the value %1 is no text or number and shows nothing; write it otherwise",
            shownValue(value)) };
    }
    const std::optional<QString> key = markedKey(textOf(value));
    const QString what = QStringLiteral("value");
    return key ? keyFindings(what, *key) : characterFindings(what, textOf(value));
}
