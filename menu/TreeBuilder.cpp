#include "menu/TreeBuilder.h"

#include "menu/RepeatedScreen.h"

#include <QDebug>
#include <QScriptValueIterator>

namespace {

constexpr int maximumItems = 200000;
constexpr int maximumLevels = 1000;

class TreeBuilder {
public:
    TreeBuilder(const ScreenIndex &screens, const RepeatCounts &counts, const PropertyNames &names)
        : screens(screens)
        , counts(counts)
        , names(names)
        , isOpen(size_t(screens.size()), false)
        , isReported(size_t(screens.size()), false)
    {
    }

    std::unique_ptr<TreeViewItem> build(const QScriptValue &rootDefinition)
    {
        auto root = std::make_unique<TreeViewItem>(rootDefinition, QScriptValue(), nullptr, -1, 0);
        for (int number = 0; number < screens.size(); ++number) {
            if (screens.at(number).strictlyEquals(rootDefinition)) {
                isOpen[size_t(number)] = true;
                break;
            }
        }
        expand(*root, -1);
        return root;
    }

private:
    void expand(TreeViewItem &item, int index)
    {
        const QScriptValue entries = item.definition.property(names.screens);
        const int repetitions =
            isMeterButton(item.definition, names) ? counts.meters : counts.compartments;
        if (repetitions > 0 && isRepeatedScreen(item.definition, names))
            addRepeatedScreen(item, repetitions);
        else
            addEntries(item, entries, index);
    }

    void addRepeatedScreen(TreeViewItem &item, int repetitions)
    {
        const QScriptValue css = item.definition.property(names.css);
        if (!css.isValid())
            return;
        const int screen = screens.find(repeatedScreenName(css.toString()));
        for (int index = 0; screen >= 0 && index < repetitions && takesEntry(); ++index)
            addScreen(item, screen, item.definition, index);
    }

    void addEntries(TreeViewItem &item, const QScriptValue &entries, int index)
    {
        const bool isArray = entries.isArray();
        QScriptValueIterator entry(entries);
        while (entry.hasNext()) {
            entry.next();
            const QScriptValue definition = entry.value();
            const QScriptValue css = definition.property(names.css);
            // The iterator also yields an array's "length", always a number. It has no css, so it
            // refers to the screen whose css is empty, if there is one.
            const bool mayBeLength = !isArray || definition.isNumber();
            const bool isLength =
                !css.isValid() && mayBeLength && entry.scriptName() == names.length;
            if (!isLength && !takesEntry())
                return;
            if (!css.isValid() && !isLength) {
                item.addChild(definition, QScriptValue(), index);
                continue;
            }
            const int screen = screens.find(css.toString());
            if (screen >= 0)
                addScreen(item, screen, definition, index);
        }
    }

    void addScreen(TreeViewItem &item, int screen, const QScriptValue &referringEntry, int index)
    {
        if (isOpen[size_t(screen)]) {
            if (!isReported[size_t(screen)])
                qWarning() << "Menu definition: dropped a screen below itself:"
                           << screens.at(screen).property(names.css).toString();
            isReported[size_t(screen)] = true;
            return;
        }
        if (!isWithin(level < maximumLevels))
            return;
        TreeViewItem &child = item.addChild(screens.at(screen), referringEntry, index);
        ++level;
        isOpen[size_t(screen)] = true;
        expand(child, index);
        isOpen[size_t(screen)] = false;
        --level;
    }

    // Also an entry that adds nothing counts, as it takes its time.
    bool takesEntry() { return isWithin(++entryCount <= maximumItems); }

    // Warns once.
    bool isWithin(bool limit)
    {
        if (!limit && !warnedOfSize)
            qWarning() << "Menu definition: too large, dropped what goes beyond" << maximumItems
                       << "items or" << maximumLevels << "levels";
        warnedOfSize |= !limit;
        return limit;
    }

    const ScreenIndex &screens;
    const RepeatCounts counts;
    const PropertyNames &names;
    std::vector<bool> isOpen; ///< by screen: on the path from the root to the current item
    std::vector<bool> isReported; ///< by screen: as dropped below itself
    int entryCount = 0;
    int level = 0;
    bool warnedOfSize = false;
};

} // namespace

std::unique_ptr<TreeViewItem> buildTree(const QScriptValue &root, const ScreenIndex &screens,
    const RepeatCounts &counts, const PropertyNames &names)
{
    return TreeBuilder(screens, counts, names).build(root);
}
