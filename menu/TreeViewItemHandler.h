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
    /// The access level while the electronic seal is open.
    static constexpr int openAccessLevel = 6;

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
    QString labelKey(const TreeViewItem &item) const;
    /// The words that read the values of the item's children; nothing when it has none.
    std::optional<QString> readBinding(const TreeViewItem &item) const;
    /// The words that write the values of the item's children; nothing when it has none.
    std::optional<QString> writeBinding(const TreeViewItem &item) const;
    InputKind inputKind(const TreeViewItem &item) const;
    TypeKind typeKind(const TreeViewItem &item) const;
    /// The diagnose screen that the item opens, NoInterface when it opens none.
    InterfaceKind diagnoseScreen(const TreeViewItem &item) const;
    bool isEditable(const TreeViewItem &item) const;
    bool isVisible(const TreeViewItem &item) const;
    bool isExcluded(const TreeViewItem &item) const;
    bool isInteger(const TreeViewItem &item) const;
    int minimum(const TreeViewItem &item) const;
    int maximum(const TreeViewItem &item) const;
    int step(const TreeViewItem &item) const;
    /// The number of "values".
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
    /// The tool's arguments: to ask for the seal's state, for the interfaces of `kind` (`tagNumber`
    /// counts for TAG only), and for the values of the children; none where there is nothing to
    /// ask.
    static QStringList sealQuery();
    static QStringList listQuery(InterfaceKind kind, int tagNumber);
    QStringList readArguments(const TreeViewItem &item) const;

    /// Asks for the seal's state and sets the access level by it: 6 while the seal is open, else 4.
    void updateAccessLevel();

    /// Updates the access level and reads the values of every open item below `root` anew, but for
    /// the item that was opened since the last refresh.
    void refreshValues(TreeViewItem &root);

    /// What the backend reports of the interfaces of `kind`; only TAG uses `tagNumber`. Empty,
    /// without running the tool, for an unknown kind.
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

    /// The values of the group's value-bearing children, in their order.
    QVariantList collectItemValues(const TreeViewItem &group) const;

    /// Gives the group's value-bearing children `values`, in their order; children beyond the last
    /// value keep theirs.
    void assignItemValues(TreeViewItem &group, const QVariantList &values) const;
    /// @}

private:
    QVariant lookUpCount(const ScreenIndex &screens, const CountEntry &entry);
    bool readValues(TreeViewItem &item);
    void readOpenItems(TreeViewItem &item);

    int currentAccessLevel = 0;
    ScriptHelper script;
    const PropertyNames propertyNames;
    const TreeViewItem *itemJustRead = nullptr;
};
