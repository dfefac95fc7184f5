#include "check/MenuCheck.h"

#include "check/AccessFindings.h"
#include "check/BindingFindings.h"
#include "check/CallWords.h"
#include "check/CountFindings.h"
#include "check/EditFindings.h"
#include "check/EntryFindings.h"
#include "check/FileFindings.h"
#include "check/FindingNames.h"
#include "check/InterfaceFindings.h"
#include "check/ListFindings.h"
#include "check/QuietMessages.h"
#include "check/ReferenceFindings.h"
#include "check/Report.h"
#include "check/ScriptFindings.h"
#include "check/SliderFindings.h"
#include "check/SpellingFindings.h"
#include "check/TextFindings.h"
#include "menu/RepeatedScreen.h"

#include <QSet>

namespace {

enum class Presence { Shown, HiddenByOmission, HiddenOnPurpose };

// Of the attributes that belong to the item's kind of field.
Findings fieldFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const InputKind kind = handler.inputKind(item);
    if (isList(kind))
        return listFindings(handler, item);
    if (!handler.isEditable(item))
        return {};
    if (kind == SliderInput)
        return sliderFindings(handler, item);
    return kind == EditInput ? editFindings(handler, item) : Findings();
}

class MenuCheck {
public:
    MenuCheck(const LoadedMenu &menu, Report &report)
        : menu(menu)
        , report(report)
        , handler(menu.handler)
        , names(handler.names())
        , words(menu)
        , repeated(repeatedScreens(menu))
    {
    }

    void run()
    {
        visit(*menu.root, Presence::Shown);
        for (int screen = 0; screen < menu.screens.size(); ++screen) {
            if (menu.screens.at(screen).isObject())
                checkPresence(menu.screens.at(screen), screen);
        }
    }

private:
    void visit(const TreeViewItem &item, Presence presence)
    {
        if (presence == Presence::Shown)
            presence = presenceOf(item);
        reached.insert(item.definition.objectId());
        if (presence != Presence::HiddenByOmission)
            decided.insert(item.definition.objectId());

        // What is no object is reported of the screen that it is in.
        if (!item.definition.isObject())
            return;
        addDefinition(item);
        report.add(item,
            selfReferenceFindings(menu, item, ledBackTo) + fieldEntryFindings(handler, item)
                + listScreenFindings(menu, item) + typeFindings(handler, item)
                + interfaceFindings(handler, item) + listCountFindings(menu, item));
        if (presence == Presence::Shown) {
            report.add(item,
                accessFindings(handler, item) + wordFindings(handler, words, item)
                    + bindingFindings(handler, item) + fieldFindings(handler, item));
            if (item.parentItem)
                report.add(item, textFindings(handler, item));
        }
        for (const auto &child : item.children)
            visit(*child, presence);
    }

    // What concerns also a screen that is nowhere in the tree.
    void addDefinition(const TreeViewItem &item)
    {
        const QScriptValue entries = item.definition.property(names.screens);
        // Of entries that several screens share, the first one is reported.
        const bool areKnown = entries.isObject() && knownEntries.contains(entries.objectId());
        knownEntries += entries.objectId();
        if (!areKnown)
            report.add(item, entryFindings(menu, item.definition));
        if (!areKnown || isRepeatedScreen(item.definition, names))
            report.add(item, referenceFindings(menu, item.definition));
        report.add(item, spellingFindings(handler, item) + nameFindings(item.definition));
    }

    Presence presenceOf(const TreeViewItem &item) const
    {
        if (!item.parentItem || handler.isVisible(item))
            return Presence::Shown;
        const QScriptValue reference = item.referringEntry.property(names.remote);
        const bool isMeant = handler.isExcluded(item) || reference.isValid()
            || item.definition.property(names.remote).isValid();
        return isMeant ? Presence::HiddenOnPurpose : Presence::HiddenByOmission;
    }

    void checkPresence(const QScriptValue &definition, int screen)
    {
        const qint64 id = definition.objectId();
        const TreeViewItem item(definition, {}, nullptr, -1, 0);
        report.add(item, countScreenFindings(menu, screen));
        if (!reached.contains(id)) {
            report.add(item, unreachedFindings(menu, screen, repeated));
            addDefinition(item);
        } else if (!decided.contains(id)) {
            report.add(item, hiddenReadFindings(handler, item));
        }
    }

    const LoadedMenu &menu;
    Report &report;
    const TreeViewItemHandler &handler;
    const PropertyNames &names;
    const CallWords words;
    const QSet<QString> repeated; ///< the css of the screens that lists repeat
    QSet<qint64> reached; ///< definitions that are in the tree
    QSet<qint64> knownEntries; ///< the "screens" that have been walked
    QSet<QString> ledBackTo; ///< the css of the screens with a self-reference
    QSet<qint64> decided; ///< those of them that are shown, or hidden by a word of the definition
};

} // namespace

QStringList menuProblems(LoadedMenu &menu)
{
    const QuietMessages quiet;
    Report report(menu);
    report.add(menu.paths.settingsScript, scriptFindings(menu));
    report.add(menu.paths.settingsScript, nameFindings(menu.global));
    const QString table = translationTable(menu.paths.webRoot);
    report.add(table, tableFindings(table));
    if (menu.settings.property(0).isObject()) {
        report.add(menu.paths.settingsScript, settingsFindings(menu));
        MenuCheck(menu, report).run();
    }
    return report.lines();
}
