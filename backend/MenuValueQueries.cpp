// What the menu and the diagnose screens ask of the backend, and what they write to it.
#include "menu/TreeViewItemHandler.h"

namespace {

// Repeated screens share their words; the number of the compartment or meter makes the difference.
QStringList argumentsOf(const QString &binding, int index)
{
    QStringList arguments = binding.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (index != -1)
        arguments.append(QString::number(index));
    return arguments;
}

} // namespace

QStringList TreeViewItemHandler::sealQuery()
{
    return { QStringLiteral("get_menu_electronic_seal_status") };
}

QStringList TreeViewItemHandler::listQuery(InterfaceKind kind, int tagNumber)
{
    const char *const query = wordsOf(kind).listQuery;
    if (!query)
        return {};
    QStringList arguments(QLatin1String { query });
    if (kind == TagInterface)
        arguments.append(QString::number(tagNumber));
    return arguments;
}

QStringList TreeViewItemHandler::readArguments(const TreeViewItem &item) const
{
    const std::optional<QString> binding = readBinding(item);
    return binding ? argumentsOf(*binding, item.index) : QStringList();
}

void TreeViewItemHandler::updateAccessLevel()
{
    const QVariant state = script.read(sealQuery(), true).value(0);
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
    if (!item.children.empty() && &item != itemJustRead)
        readValues(item);
    for (const auto &child : item.children)
        readOpenItems(*child);
}

bool TreeViewItemHandler::readValues(TreeViewItem &item)
{
    if (!readBinding(item))
        return false;
    assignItemValues(item, script.read(readArguments(item), true));
    return true;
}

QVariantList TreeViewItemHandler::interfaceList(InterfaceKind kind, int tagNumber)
{
    const QStringList arguments = listQuery(kind, tagNumber);
    return arguments.isEmpty() ? QVariantList() : script.read(arguments, true);
}

bool TreeViewItemHandler::enableInterface(InterfaceKind kind, bool enabled)
{
    const char *const name = wordsOf(kind).name;
    if (!name)
        return false;
    QStringList arguments(QStringLiteral("button_service_diagnose_enable_if"));
    // The tool's answer does not matter: the screen shows whether data arrive.
    script.write(arguments, { QLatin1String(name), enabled });
    return true;
}

bool TreeViewItemHandler::toggleItem(TreeViewItem &node, const TreeViewItem *target, bool force)
{
    const bool closing = force || (&node == target && node.expanded);
    if (closing) {
        node.expanded = false;
    } else if (&node == target) {
        node.expanded = true;
        if (readValues(node))
            itemJustRead = &node;
        return true;
    } else if (!node.expanded && node.parentItem) {
        return false;
    }
    for (const auto &child : node.children) {
        if (toggleItem(*child, target, closing))
            return true;
    }
    return false;
}

bool TreeViewItemHandler::writeItemValues(const TreeViewItem &item)
{
    const TreeViewItem *const group = item.parentItem;
    const std::optional<QString> binding = group ? writeBinding(*group) : std::nullopt;
    if (!binding)
        return false;
    QStringList arguments = argumentsOf(*binding, item.index);
    return script.write(arguments, collectItemValues(*group));
}

// The backend's lists are positional: one value for each child but separators and buttons.
bool TreeViewItemHandler::isValueBearing(const TreeViewItem &item) const
{
    const InputKind kind = inputKind(item);
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
