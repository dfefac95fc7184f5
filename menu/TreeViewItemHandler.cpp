#include "menu/TreeViewItemHandler.h"

#include "menu/ScreenIndex.h"
#include "menu/TreeBuilder.h"

#include <QDebug>
#include <QScriptValueIterator>

namespace {

constexpr int maximumRepetitions = 999;

int repetitions(const QVariant &count, const char *what)
{
    if (count.toDouble() > maximumRepetitions) {
        qWarning() << "The backend's number of" << what << "is taken as none:" << count;
        return 0;
    }
    return count.toInt();
}

QVariant noCount(const char *reason)
{
    qWarning() << reason;
    return {};
}

} // namespace

TreeViewItemHandler::TreeViewItemHandler(const DevicePaths &paths)
    : script(paths)
    , propertyNames(script.scriptEngine())
{
}

std::unique_ptr<TreeViewItem> TreeViewItemHandler::build()
{
    const QScriptValue settings = script.load();
    const ScreenIndex screens(settings, propertyNames);
    RepeatCounts counts;
    counts.compartments = repetitions(lookUpCount(screens, QStringLiteral("btnParameterTruckSetup"),
                                          QStringLiteral("truck_setup_compartments")),
        "compartments");
    counts.meters =
        repetitions(lookUpCount(screens, QStringLiteral("btnParameterInterfacesCanFasWm"),
                        QStringLiteral("interfaces_can_fas_wm_fpi")),
            "meters");
    return buildTree(settings.property(0), screens, counts, propertyNames);
}

QVariant TreeViewItemHandler::lookUpCount(
    const ScreenIndex &screens, const QString &css, const QString &fieldKey)
{
    const int screen = screens.find(css);
    if (screen < 0)
        return {};
    const QScriptValue entries = screens.at(screen).property(propertyNames.screens);
    if (!entries.isValid())
        return noCount("!screens.isValid()");
    QScriptValueIterator entry(entries);
    int searchIndex = -1;
    for (int position = 0; entry.hasNext() && searchIndex < 0; ++position) {
        entry.next();
        const QScriptValue key = entry.value().property(propertyNames.i18n);
        if (key.isValid() && key.toString() == fieldKey)
            searchIndex = position;
    }
    if (searchIndex < 0)
        return noCount("!searchIndexFound");
    const QScriptValue readWords = screens.at(screen).property(propertyNames.read);
    if (!readWords.isValid())
        return noCount("!ajaxRead.isValid()");
    const QVariantList answer = script.read({ readWords.toString() }, false);
    if (searchIndex >= answer.size())
        return noCount("!ajaxResult.count()");
    return answer.at(searchIndex);
}

void TreeViewItemHandler::numberVisibleItems(
    TreeViewItem &item, QVector<TreeViewItem *> &items) const
{
    if (item.parentItem) {
        if (!isVisible(item))
            return;
        items.push_back(&item);
    }
    if (!item.parentItem || item.expanded) {
        for (const auto &child : item.children)
            numberVisibleItems(*child, items);
    }
}
