#include "menu/TreeViewItemHandler.h"

#include "json/Values.h"
#include "menu/CountEntry.h"
#include "menu/ScreenIndex.h"
#include "menu/TreeBuilder.h"

#include <QDebug>

namespace {

constexpr int maximumRepetitions = 999;

int repetitions(const QVariant &count, const char *what)
{
    if (count.toDouble() > maximumRepetitions) {
        qWarning() << "The backend's number of" << what << "is taken as none:" << textOf(count);
        return 0;
    }
    return integerOf(count);
}

QVariant noCount(const char *reason)
{
    qWarning() << reason;
    return {};
}

} // namespace

TreeViewItemHandler::TreeViewItemHandler(const DevicePaths &paths, const ToolRunner &runTool)
    : script(paths, runTool)
    , propertyNames(script.scriptEngine())
{
}

std::unique_ptr<TreeViewItem> TreeViewItemHandler::build()
{
    const QScriptValue settings = script.load();
    const ScreenIndex screens(settings, propertyNames);
    return buildTree(settings.property(0), screens, readCounts(screens), propertyNames);
}

RepeatCounts TreeViewItemHandler::readCounts(const ScreenIndex &screens)
{
    return { repetitions(lookUpCount(screens, compartmentCount), "compartments"),
        repetitions(lookUpCount(screens, meterCount), "meters") };
}

QVariant TreeViewItemHandler::lookUpCount(const ScreenIndex &screens, const CountEntry &entry)
{
    const int screen = screens.find(QLatin1String(entry.screen));
    if (screen < 0)
        return {};
    if (!screens.at(screen).property(propertyNames.screens).isValid())
        return noCount("!screens.isValid()");
    const int place = positionOf(entry, screens.at(screen), propertyNames);
    if (place < 0)
        return noCount("!searchIndexFound");
    const QScriptValue readWords = screens.at(screen).property(propertyNames.read);
    if (!readWords.isValid())
        return noCount("!ajaxRead.isValid()");
    const QVariantList answer = script.read({ readWords.toString() }, false);
    if (place >= answer.size())
        return noCount("!ajaxResult.count()");
    return answer.at(place);
}

void TreeViewItemHandler::numberVisibleItems(
    TreeViewItem &item, QVector<TreeViewItem *> &items) const
{
    if (item.parentItem) {
        if (!isVisible(item))
            return;
        items.push_back(&item);
        if (!item.expanded)
            return;
    }
    for (const auto &child : item.children)
        numberVisibleItems(*child, items);
}
