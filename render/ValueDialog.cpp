#include "render/ValueDialog.h"

#include "json/Values.h"
#include "locale/CTranslationHandler.h"
#include "menu/Saturated.h"
#include "render/ForeignText.h"
#include "render/InputValidation.h"
#include "render/Selection.h"

#include <functional>

namespace {

// The width of a box around `contentLength` characters: half the terminal, more where needed.
int boxWidth(const ViewState &state, qint64 contentLength)
{
    const qint64 columns = state.termColumns;
    return int(qBound(columns / 2, contentLength + 2, columns));
}

Frame dialogBox(const ViewState &state, int width, const QString &title)
{
    constexpr int dialogLines = 7;
    Frame box = buildBox(dialogLines, width, state.termRows);
    placeCentred(box, width, 0, title, 0);
    return box;
}

// A list that rolls under a fixed highlight, opened at its entry `chosen`.
Frame rollingList(ViewState &state, int width, const QString &title, int chosen, int entryCount,
    const std::function<QString(int)> &entryAt)
{
    if (state.listIndex < 0)
        state.listIndex = chosen;
    state.optionCount = entryCount;

    constexpr int middleLine = 3;
    Frame box = dialogBox(state, width, title);
    for (int line = middleLine - 1; line <= middleLine + 1; ++line) {
        const QString entry = entryAt(saturated<int>(qint64(state.listIndex) + line - middleLine));
        placeCentred(box, width, line, printable(entry), 0);
        if (line == middleLine && !entry.isEmpty())
            highlightLine(box, line);
    }
    return box;
}

Frame listSelector(ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const int current = handler.hasDatabaseValues(item)
        ? handler.indexOfDatabaseValue(item, item.value)
        : integerOf(item.value);
    return rollingList(state, boxWidth(state, handler.widestValue(item)),
        QStringLiteral("Select new Value"), current, handler.valueCount(item),
        [&handler, &item](int i) {
            const QString key = textOf(handler.valueAt(item, i));
            return key.isEmpty() ? key : translate(key);
        });
}

Frame booleanSelector(ViewState &state, const TreeViewItem &item)
{
    static const QStringList entries { QStringLiteral("false"), QStringLiteral("true") };
    return rollingList(state, boxWidth(state, 0), QStringLiteral("Select new Value"),
        truthOf(item.value) ? 1 : 0, entries.size(), [](int i) { return entries.value(i); });
}

// The place of the mark on a bar of `barLength` characters; `barLength` is right after the bar.
int sliderMark(const ViewState &state, int barLength)
{
    const qint64 span = qint64(state.rangeLimit) - state.rangeMin;
    if (state.dialogValue <= 0 || span == 0)
        return 0;
    const qint64 distance = qint64(state.dialogValue) - state.rangeMin;
    return saturated<int>(qMax<qint64>(barLength * distance / span, 0));
}

// The mark can go one beyond the maximum, which is right after the bar.
Frame sliderDialog(ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    state.rangeMin = handler.minimum(item);
    state.step = handler.step(item);
    state.rangeLimit = saturated<int>(qint64(handler.maximum(item)) + 1);
    if (state.dialogValue < state.rangeMin)
        state.dialogValue = integerOf(item.value);

    const int width = boxWidth(state, 0);
    QString bar(qMax(width - 2, 0), QLatin1Char('-'));
    const int mark = sliderMark(state, bar.size());
    if (mark <= bar.size())
        replaceText(bar, mark, 1, QStringLiteral("|"));

    Frame box = dialogBox(state, width, QStringLiteral("Set new Value"));
    placeCentred(box, width, 2, QString::number(state.dialogValue), 0);
    placeCentred(box, width, 3, bar, 0);
    return box;
}

// Unlike `fieldLength`, which places the cursor, the typing limit does not depend on a range.
Frame editDialog(ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    if (state.dialogValue < 0) {
        state.editBuffer = textOf(item.value);
        state.dialogValue = state.editBuffer.size();
    }
    if (state.rangeLimit == 0)
        state.rangeLimit = saturated<int>(inputRule(handler, item).length.value_or(0));

    const int width = boxWidth(state, state.rangeLimit);
    Frame box = dialogBox(
        state, width, QStringLiteral("Enter new Value ") + QString::number(state.rangeLimit));
    placeCentred(box, width, 3, printable(state.editBuffer), state.rangeLimit);
    colourSegment(box, width, 3, state.rangeLimit, !validateInput(handler, item, state.editBuffer));
    return box;
}

// Nothing when the item refuses what was typed, or has no dialog.
std::optional<QVariant> chosenValue(
    const ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    switch (handler.inputKind(item)) {
    case DropdownInput:
        if (handler.hasDatabaseValues(item))
            return handler.databaseValueAt(item, state.listIndex);
        return state.listIndex;
    case BooleanInput:
        return state.listIndex != 0;
    case SliderInput:
        return state.dialogValue;
    case EditInput:
        if (validateInput(handler, item, state.editBuffer))
            return state.editBuffer;
        break;
    case SeparatorInput:
    case ButtonInput:
    case LabelInput:
    case SelectLabelInput:
    case PlainInput:
    case NoInput:
        break;
    }
    return std::nullopt;
}

} // namespace

Frame startMenu(ViewState &state)
{
    static const QStringList entries { QStringLiteral("start Dravikon Menu"),
        QStringLiteral("continue to local shell") };
    return rollingList(state, boxWidth(state, entries.first().size()),
        QStringLiteral("Select next Step"), 0, entries.size(),
        [](int i) { return entries.value(i); });
}

Frame valueDialog(ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    switch (handler.inputKind(item)) {
    case DropdownInput:
        return listSelector(state, handler, item);
    case BooleanInput:
        return booleanSelector(state, item);
    case SliderInput:
        return sliderDialog(state, handler, item);
    case EditInput:
        return editDialog(state, handler, item);
    case SeparatorInput:
    case ButtonInput:
    case LabelInput:
    case SelectLabelInput:
    case PlainInput:
    case NoInput:
        break;
    }
    return {};
}

bool commitValue(ViewState &state, const TreeViewItemHandler &handler, int index)
{
    TreeViewItem *const item = state.visibleItems.value(index);
    const std::optional<QVariant> value = item ? chosenValue(state, handler, *item) : std::nullopt;
    if (!value)
        return false;
    if (!state.formerValue)
        state.formerValue = item->value;
    item->value = *value;
    return true;
}

void dropValue(ViewState &state)
{
    TreeViewItem *const item = state.selectedItem();
    if (item && state.formerValue)
        item->value = *state.formerValue;
    state.formerValue.reset();
}

void typeCharacter(ViewState &state, const TreeViewItemHandler &handler, int key)
{
    const bool isByte = key >= 0 && key <= 0xff;
    if (!isByte || state.editBuffer.size() >= state.rangeLimit)
        return;
    state.editBuffer.insert(qBound(0, state.dialogValue, state.editBuffer.size()), QChar(key));
    moveSelection(state, handler, true, +1);
}

void removeCharacter(ViewState &state, const TreeViewItemHandler &handler)
{
    moveSelection(state, handler, true, -1);
    state.editBuffer.remove(qMax(state.dialogValue, 0), 1); // a slider can be below 0
}

CursorPosition editPosition(const ViewState &state, const TreeViewItemHandler &handler)
{
    const TreeViewItem *const item = state.selectedItem();
    const int length = item ? fieldLength(handler, *item) : 0;
    const qint64 column = qint64(state.termColumns / 2) + state.dialogValue - length / 2 + 1;
    return { qBound(1, state.termRows / 2 + 1, state.termRows),
        int(qBound<qint64>(1, column, state.termColumns)) };
}
