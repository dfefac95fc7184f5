// What the menu and the diagnose screens ask of the backend, and what they tell it.
#include "menu/TreeViewItemHandler.h"

#include <array>

namespace {

constexpr int sealedAccessLevel = 4;
constexpr int openAccessLevel = 6;

struct InterfaceWords {
    const char *listQuery;
    const char *name;
};

constexpr std::array<InterfaceWords, 7> interfaceWords = { {
    { "", "" },
    { "get_menu_service_diagnose_spd_interfaces", "SpdInterface" },
    { "get_menu_service_diagnose_io_interfaces", "IoInterface" },
    { "get_menu_service_diagnose_wetleg_interfaces", "WetlegInterface" },
    { "get_menu_service_diagnose_tag_interfaces", "TagInterface" },
    { "get_menu_service_diagnose_as_interfaces", "AsInterface" },
    { "get_menu_service_diagnose_level_interfaces", "LevelInterface" },
} };

bool isInterface(int kind)
{
    return kind > NoInterface && kind < int(interfaceWords.size());
}

// Repeated screens share their words; the number of the compartment or meter tells them apart.
QStringList argumentsOf(const QString &binding, int index)
{
    QStringList arguments = binding.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (index != -1)
        arguments.append(QString::number(index));
    return arguments;
}

} // namespace

void TreeViewItemHandler::updateAccessLevel()
{
    const QVariant state =
        script.read({ QStringLiteral("get_menu_electronic_seal_status") }, true).value(0);
    currentAccessLevel =
        state.toString() == QLatin1String("i18n_wm_false") ? openAccessLevel : sealedAccessLevel;
}

void TreeViewItemHandler::refreshValues(TreeViewItem &root)
{
    updateAccessLevel();
    for (const auto &child : root.children)
        readOpenItems(*child);
    itemJustRead = nullptr;
}

void TreeViewItemHandler::readOpenItems(TreeViewItem &item)
{
    if (!item.expanded)
        return;
    if (!item.children.empty() && &item != itemJustRead && hasReadBinding(item))
        readValues(item);
    for (const auto &child : item.children)
        readOpenItems(*child);
}

void TreeViewItemHandler::readValues(TreeViewItem &item)
{
    assignItemValues(item, script.read(argumentsOf(readBinding(item), item.index), true));
}

QVariantList TreeViewItemHandler::interfaceList(int kind, int tagNumber)
{
    if (!isInterface(kind))
        return {};
    QStringList arguments(QLatin1String(interfaceWords[size_t(kind)].listQuery));
    if (kind == TagInterface)
        arguments.append(QString::number(tagNumber));
    return script.read(arguments, true);
}

bool TreeViewItemHandler::enableInterface(int kind, bool enabled)
{
    if (!isInterface(kind))
        return false;
    QStringList arguments(QStringLiteral("button_service_diagnose_enable_if"));
    // The tool's answer does not matter: the screen shows whether data arrive.
    script.write(arguments, { QLatin1String(interfaceWords[size_t(kind)].name), enabled });
    return true;
}

bool TreeViewItemHandler::toggleItem(TreeViewItem &node, const TreeViewItem *target, bool force)
{
    bool closing = force;
    if (!force && &node == target) {
        closing = node.expanded;
        if (!closing) {
            node.expanded = true;
            if (hasReadBinding(node)) {
                readValues(node);
                itemJustRead = &node;
            }
            return true;
        }
    }
    if (closing)
        node.expanded = false;
    for (const auto &child : node.children) {
        if (!node.expanded && node.parentItem && !closing)
            return false;
        if (toggleItem(*child, target, closing) && !closing)
            return true;
    }
    return false;
}

bool TreeViewItemHandler::writeItemValues(const TreeViewItem &item)
{
    const TreeViewItem *const group = item.parentItem;
    if (!group || !hasWriteBinding(*group))
        return false;
    QStringList arguments = argumentsOf(writeBinding(*group), item.index);
    return script.write(arguments, collectItemValues(*group));
}

// The backend's lists are positional: one value for each child but separators and buttons.
bool TreeViewItemHandler::isValueBearing(const TreeViewItem &item) const
{
    const int kind = inputKind(item);
    return kind != SeparatorInput && kind != ButtonInput;
}

QVariantList TreeViewItemHandler::collectItemValues(const TreeViewItem &group) const
{
    QVariantList values;
    for (const auto &child : group.children) {
        if (isValueBearing(*child))
            values.append(child->value);
    }
    return values;
}

void TreeViewItemHandler::assignItemValues(TreeViewItem &group, const QVariantList &values) const
{
    auto value = values.cbegin();
    for (const auto &child : group.children) {
        if (value == values.cend())
            return;
        if (isValueBearing(*child))
            child->value = *value++;
    }
}
