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
    compartmentCount = repetitions(lookUpCount(screens, QStringLiteral("btnParameterTruckSetup"),
                                       QStringLiteral("truck_setup_compartments")),
        "compartments");
    meterCount = repetitions(lookUpCount(screens, QStringLiteral("btnParameterInterfacesCanFasWm"),
                                 QStringLiteral("interfaces_can_fas_wm_fpi")),
        "meters");
    return buildTree(settings.property(0), screens, { compartmentCount, meterCount }, *this);
}

QVariant TreeViewItemHandler::lookUpCount(
    const ScreenIndex &screens, const QString &css, const QString &fieldKey)
{
    const int screen = screens.find(css);
    if (screen < 0)
        return {};
    const QScriptValue entries = screens.at(screen).property(propertyNames.screens);
    if (!entries.isValid()) {
        qWarning() << "!screens.isValid()";
        return {};
    }
    QScriptValueIterator entry(entries);
    int searchIndex = -1;
    for (int position = 0; entry.hasNext() && searchIndex < 0; ++position) {
        entry.next();
        const QScriptValue key = entry.value().property(propertyNames.i18n);
        if (key.isValid() && key.toString() == fieldKey)
            searchIndex = position;
    }
    if (searchIndex < 0) {
        qWarning() << "!searchIndexFound";
        return {};
    }
    const QScriptValue readWords = screens.at(screen).property(propertyNames.read);
    if (!readWords.isValid()) {
        qWarning() << "!ajaxRead.isValid()";
        return {};
    }
    const QVariantList answer = script.read({ readWords.toString() }, false);
    if (searchIndex >= answer.size()) {
        qWarning() << "!ajaxResult.count()";
        return {};
    }
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
