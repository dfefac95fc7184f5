#include "render/ListDialog.h"

#include "locale/CTranslationHandler.h"
#include "render/DialogBox.h"
#include "render/ForeignText.h"
#include "render/Saturated.h"

#include <functional>

namespace {

const QStringList &startEntries()
{
    static const QStringList entries { QStringLiteral("start Dravikon Menu"),
        QStringLiteral("continue to local shell") };
    return entries;
}

const QStringList &booleanEntries()
{
    static const QStringList entries { QStringLiteral("false"), QStringLiteral("true") };
    return entries;
}

void openList(ViewState &state, int chosen, int entryCount)
{
    if (state.listIndex < 0) {
        state.listIndex = chosen;
        state.listMin = 0;
    }
    if (state.optionCount == 0)
        state.optionCount = entryCount;
}

Frame rollingList(const ViewState &state, int width, const QString &title,
    const std::function<QString(int)> &entryAt)
{
    constexpr int middleLine = 3;
    Frame box = dialogBox(state, width, title);
    for (int line = middleLine - 1; line <= middleLine + 1; ++line) {
        const QString entry = entryAt(saturated(qint64(state.listIndex) + line - middleLine));
        placeCentred(box, width, line, printable(entry), 0);
        if (line == middleLine && !entry.isEmpty())
            highlightLine(box, line);
    }
    return box;
}

} // namespace

Frame startMenu(ViewState &state)
{
    openList(state, 0, startEntries().size());
    return rollingList(state, boxWidthFor(state, startEntries().first().size()),
        QStringLiteral("Select next Step"), [](int i) { return startEntries().value(i); });
}

Frame listSelector(ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const int current = handler.hasDatabaseValues(item)
        ? handler.indexOfDatabaseValue(item, item.value)
        : item.value.toInt();
    openList(state, current, handler.valueCount(item));
    return rollingList(state, boxWidthFor(state, handler.widestValue(item)),
        QStringLiteral("Select new Value"), [&handler, &item](int i) {
            const QString key = handler.valueAt(item, i).toString();
            return key.isEmpty() ? key : translate(key);
        });
}

Frame booleanSelector(ViewState &state, const TreeViewItem &item)
{
    openList(state, item.value.toBool() ? 1 : 0, booleanEntries().size());
    return rollingList(state, plainBoxWidth(state), QStringLiteral("Select new Value"),
        [](int i) { return booleanEntries().value(i); });
}
