#include "check/LayoutRow.h"

#include "check/Answer.h"
#include "json/Values.h"
#include "locale/CTranslationHandler.h"
#include "menu/Saturated.h"
#include "render/InputValidation.h"

namespace {

// The values of a list as they are written, with their texts.
QStringList options(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    QStringList lines;
    for (int i = 0, count = handler.valueCount(item); i < count; ++i) {
        const QVariant value =
            handler.hasDatabaseValues(item) ? handler.databaseValueAt(item, i) : QVariant(i);
        lines +=
            shownValue(value) + QLatin1String(" = ") + translate(textOf(handler.valueAt(item, i)));
    }
    if (handler.isInteger(item))
        lines += QStringLiteral("shown as the number");
    return lines;
}

QString rule(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const InputRule rule = inputRule(handler, item);
    const bool isNumber = rule.kind == InputRule::Number;
    if (!rule.length || (isNumber && !hasRange(handler, item)))
        return QStringLiteral("accepts no text");
    const QString range = QStringLiteral("%1 to %2, ")
                              .arg(rangeValue(handler, item, 0))
                              .arg(rangeValue(handler, item, 1));
    return (isNumber ? range : QString()) + QStringLiteral("length %1").arg(*rule.length);
}

QStringList accepted(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const InputKind kind = handler.inputKind(item);
    if (kind == DropdownInput || kind == SelectLabelInput)
        return options(handler, item);
    if (kind == SliderInput) { // it can go one beyond its maximum
        const int beyond = saturated<int>(qint64(handler.maximum(item)) + 1);
        const QString range = QStringLiteral("%1 to %2, step %3").arg(handler.minimum(item));
        return { range.arg(handler.maximum(item)).arg(handler.step(item)),
            QStringLiteral("and %1").arg(beyond) };
    }
    if (kind == EditInput)
        return { rule(handler, item) };
    return { kind == BooleanInput ? QStringLiteral("true, false") : QString() };
}

QString kindWithMarks(TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const InputKind kind = handler.inputKind(item);
    const bool isReference = item.referringEntry.isValid() || !item.children.empty();
    QStringList words(kind == NoInput ? QStringLiteral("value") : QLatin1String(inputWords[kind]));
    if (isReference)
        words = QStringList(QStringLiteral("reference"));
    if (!handler.isVisible(item))
        words += QStringLiteral("hidden");
    handler.setAccessLevel(TreeViewItemHandler::sealedAccessLevel);
    const bool isEditableSealed = handler.isEditable(item);
    handler.setAccessLevel(TreeViewItemHandler::openAccessLevel);
    if (hasDialog(kind) && !isReference && !isEditableSealed)
        words += handler.isEditable(item) ? QStringLiteral("level 6") : QStringLiteral("read-only");
    return words.join(QLatin1String(", "));
}

} // namespace

QVector<QStringList> layoutRow(TreeViewItemHandler &handler, const TreeViewItem &item, int position)
{
    return { { QString::number(position).rightJustified(4) }, { handler.labelKey(item) },
        { translate(handler.labelKey(item)) }, { kindWithMarks(handler, item) },
        accepted(handler, item) };
}
