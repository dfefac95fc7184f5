// The menu tree: building it, its items' attributes, and their values in the backend.
#pragma once

#include "menu/ItemKinds.h"
#include "menu/PropertyNames.h"
#include "menu/ScriptHelper.h"
#include "menu/TreeViewItem.h"

#include <QVector>

#include <optional>

class ScreenIndex;
struct CountEntry;
struct RepeatCounts;

/// Owns the script with the menu definition and answers every question about the menu. The
/// operations on values run the backend tool and block until it has answered; a tool that fails
/// looks like an empty answer.
class TreeViewItemHandler : public QObject {
public:
    /// The access levels while the electronic seal is open and closed.
    static constexpr int openAccessLevel = 6;
    static constexpr int sealedAccessLevel = 4;

    explicit TreeViewItemHandler(const DevicePaths &paths, const ToolRunner &runTool = {});

    /// Loads the menu definition, asks the backend for the numbers of compartments and meters, and
    /// builds the tree. The tree must not outlive the handler. A definition that is missing or
    /// broken gives a root without children.
    std::unique_ptr<TreeViewItem> build();

    /// Asks the backend for the numbers of compartments and meters; a number that cannot be had, or
    /// is above 999, is 0.
    RepeatCounts readCounts(const ScreenIndex &screens);

    /// Numbers the visible items from `item` down, depth first through expanded items: appends each
    /// to `items`, its place there being its line in the menu. The root gets none.
    void numberVisibleItems(TreeViewItem &item, QVector<TreeViewItem *> &items) const;

    ScriptHelper &scriptHelper() { return script; }
    const QString &setupStructureVersion() const { return script.setupStructureVersion(); }
    const PropertyNames &names() const { return propertyNames; }
    /// Replaces `updateAccessLevel` where there is no backend to ask.
    void setAccessLevel(int level) { currentAccessLevel = level; }

    /// \name Attributes, read from the item's definition (bodies in menu/ItemAttributes.cpp)
    /// A missing attribute reads as 0, false or an empty text. Positions in lists count from 0.
    /// @{
    /// The item's own "i18n", else that of the reference to it, else "meter" or "compartment" for a
    /// css that ends with "ModifyDo" or "Show", else its css.
    QString labelKey(const TreeViewItem &item) const;
    /// The words that read and write the values of the item's children, if it has such words.
    std::optional<QString> readBinding(const TreeViewItem &item) const;
    std::optional<QString> writeBinding(const TreeViewItem &item) const;
    InputKind inputKind(const TreeViewItem &item) const;
    TypeKind typeKind(const TreeViewItem &item) const;
    /// The diagnose screen that the item opens, NoInterface when it opens none.
    InterfaceKind diagnoseScreen(const TreeViewItem &item) const;
    /// True for a dropdown, edit, boolean or slider without children, unless its "remote" is 2 or
    /// its "accessLvl" above the present one.
    bool isEditable(const TreeViewItem &item) const;
    /// False for "remote" 0, for what is excluded, and for a screen with a "type" but no "remote",
    /// unless the reference to it has a "remote" other than 0 or is a compartment or meter button.
    bool isVisible(const TreeViewItem &item) const;
    /// True for screens that are not for the console: "TODO" in the css, and loading plans.
    bool isExcluded(const TreeViewItem &item) const;
    bool isInteger(const TreeViewItem &item) const;
    int minimum(const TreeViewItem &item) const { return integer(item, propertyNames.minimum); }
    int maximum(const TreeViewItem &item) const { return integer(item, propertyNames.maximum); }
    int step(const TreeViewItem &item) const { return integer(item, propertyNames.step); }
    int valueCount(const TreeViewItem &item) const;
    /// The entry of "values" at `i`; an empty text when there is none.
    QVariant valueAt(const TreeViewItem &item, int i) const;
    /// The length of the longest entry of "values", in characters.
    int widestValue(const TreeViewItem &item) const;
    bool hasDatabaseValues(const TreeViewItem &item) const;
    /// The entry of "dbValues" at `i`; the integer 0 when there is none.
    QVariant databaseValueAt(const TreeViewItem &item, int i) const;
    /// The first position below the number of "values" whose entry of "dbValues" has the text of
    /// `value`; -1 when none has.
    int indexOfDatabaseValue(const TreeViewItem &item, const QVariant &value) const;
    /// @}

    /// \name Values in the backend (bodies in backend/MenuValueQueries.cpp)
    /// @{
    /// The tool's arguments for each query, none where there is nothing to ask; `tagNumber` is used
    /// for TAG only.
    static QStringList sealQuery();
    static QStringList listQuery(InterfaceKind kind, int tagNumber);
    QStringList readArguments(const TreeViewItem &item) const;

    /// Sets the access level to 6 while the electronic seal is open, to 4 otherwise.
    void updateAccessLevel();

    /// Updates the access level and reads the values of every open item below `root` anew, but for
    /// the item that was opened since the last refresh.
    void refreshValues(TreeViewItem &root);

    /// The state of the interfaces of `kind`; empty, without running the tool, for an unknown kind.
    QVariantList interfaceList(InterfaceKind kind, int tagNumber);

    /// Switches the interfaces of `kind` on or off. True whatever the tool answers; false, without
    /// running it, for an unknown kind.
    bool enableInterface(InterfaceKind kind, bool enabled);

    /// Opens or closes `target`, which is searched from `node` down through open items; with
    /// `force`, closes everything from `node` down. Closing closes all below, opening reads the
    /// values of the children. True when the target was found and opened.
    bool toggleItem(TreeViewItem &node, const TreeViewItem *target, bool force);

    /// Writes the values of the whole group that `item` belongs to. False when the tool refuses
    /// them, and without running it when the group has no write binding.
    bool writeItemValues(const TreeViewItem &item);

    /// True for what has a place in the backend's lists of values: all but separators and buttons.
    bool isValueBearing(const TreeViewItem &item) const;

    /// Both go by the order of the group's value-bearing children; those beyond the last value keep
    /// theirs.
    QVariantList collectItemValues(const TreeViewItem &group) const;
    void assignItemValues(TreeViewItem &group, const QVariantList &values) const;
    /// @}

private:
    static int integer(const TreeViewItem &item, const QScriptString &name);
    QVariant lookUpCount(const ScreenIndex &screens, const CountEntry &entry);
    bool readValues(TreeViewItem &item);
    void readOpenItems(TreeViewItem &item);

    int currentAccessLevel = 0;
    ScriptHelper script;
    const PropertyNames propertyNames;
    const TreeViewItem *itemJustRead = nullptr;
};
