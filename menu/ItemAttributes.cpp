// The attribute queries: what an item's definition says about it.
#include "menu/TreeViewItemHandler.h"

#include "json/Values.h"
#include "menu/RepeatedScreen.h"
#include "menu/Saturated.h"

#include <cmath>

namespace {

// A script can claim any length for its lists; nobody scrolls through more than this.
constexpr double maximumValues = 100000;

// The index of the value's text among `words`; `count` when it is not among them.
template <size_t count>
size_t indexOfWord(const QScriptValue &value, const std::array<const char *, count> &words)
{
    const QString text = value.toString();
    size_t index = 0;
    while (index < count && text != QLatin1String(words[index]))
        ++index;
    return index;
}

std::optional<QString> textIfPresent(const QScriptValue &value)
{
    return value.isValid() ? std::make_optional(value.toString()) : std::nullopt;
}

// Nothing where the list has no such entry. A number without a fraction becomes an integer if it
// fits into 64 bits. An object becomes its text: the engine's conversion of one that is nested
// deeply overflows the stack.
std::optional<QVariant> entryAt(const QScriptValue &list, int i)
{
    constexpr double wordLimit = 18446744073709551616.0; // 2^64
    const QScriptValue entry = i < 0 ? QScriptValue() : list.property(quint32(i));
    if (!entry.isValid())
        return std::nullopt;
    if (entry.isObject())
        return entry.toString();
    const double number = entry.isNumber() ? entry.toNumber() : qQNaN();
    if (std::trunc(number) != number)
        return entry.toVariant();
    if (-wordLimit / 2 <= number && number < wordLimit / 2)
        return qlonglong(number);
    return 0 < number && number < wordLimit ? QVariant(qulonglong(number)) : entry.toVariant();
}

} // namespace

QString TreeViewItemHandler::labelKey(const TreeViewItem &item) const
{
    for (const QScriptValue &definition : { item.definition, item.referringEntry }) {
        QString key = definition.property(propertyNames.i18n).toString();
        if (!key.isEmpty())
            return key;
    }
    QString css = item.definition.property(propertyNames.css).toString();
    if (css.endsWith(QLatin1String("ModifyDo")) || css.endsWith(QLatin1String("Show"))) {
        return css.contains(QLatin1String("Meters")) ? QStringLiteral("meter")
                                                     : QStringLiteral("compartment");
    }
    return css;
}

std::optional<QString> TreeViewItemHandler::readBinding(const TreeViewItem &item) const
{
    return textIfPresent(item.definition.property(propertyNames.read));
}

std::optional<QString> TreeViewItemHandler::writeBinding(const TreeViewItem &item) const
{
    return textIfPresent(item.definition.property(propertyNames.write));
}

InputKind TreeViewItemHandler::inputKind(const TreeViewItem &item) const
{
    return InputKind(indexOfWord(item.definition.property(propertyNames.inputType), inputWords));
}

TypeKind TreeViewItemHandler::typeKind(const TreeViewItem &item) const
{
    return TypeKind(indexOfWord(item.definition.property(propertyNames.type), typeWords));
}

InterfaceKind TreeViewItemHandler::diagnoseScreen(const TreeViewItem &item) const
{
    return typeKind(item) == StatusType
        ? interfaceWithCss(item.definition.property(propertyNames.css).toString())
        : NoInterface;
}

bool TreeViewItemHandler::isEditable(const TreeViewItem &item) const
{
    if (!item.children.empty() || item.definition.property(propertyNames.remote).toNumber() == 2
        || item.definition.property(propertyNames.accessLevel).toNumber() > currentAccessLevel)
        return false;
    return hasDialog(inputKind(item));
}

bool TreeViewItemHandler::isVisible(const TreeViewItem &item) const
{
    const QScriptValue remote = item.definition.property(propertyNames.remote);
    const QScriptValue decisive =
        remote.isValid() ? remote : item.referringEntry.property(propertyNames.remote);
    const bool needsRemote = remote.isValid()
        || (item.definition.property(propertyNames.type).isValid()
            && !isCompartmentOrMeterButton(item.referringEntry, propertyNames));
    if (needsRemote && decisive.toNumber() == 0)
        return false;
    return !isExcluded(item);
}

bool TreeViewItemHandler::isExcluded(const TreeViewItem &item) const
{
    QScriptValue css = item.definition.property(propertyNames.css);
    if (!css.isValid())
        css = item.referringEntry.property(propertyNames.css);
    const QString name = css.toString();
    return name.contains(QLatin1String("TODO")) || name == QLatin1String("btnLoadingplan")
        || name == QLatin1String("btnServiceLoadingplan");
}

bool TreeViewItemHandler::isInteger(const TreeViewItem &item) const
{
    return item.definition.property(propertyNames.integer).toBool();
}

int TreeViewItemHandler::integer(const TreeViewItem &item, const QScriptString &name)
{
    return saturated<int>(item.definition.property(name).toInteger());
}

int TreeViewItemHandler::valueCount(const TreeViewItem &item) const
{
    const QScriptValue values = item.definition.property(propertyNames.values);
    return int(qBound(0.0, values.property(propertyNames.length).toInteger(), maximumValues));
}

QVariant TreeViewItemHandler::valueAt(const TreeViewItem &item, int i) const
{
    return entryAt(item.definition.property(propertyNames.values), i).value_or(QString());
}

int TreeViewItemHandler::widestValue(const TreeViewItem &item) const
{
    int widest = 0;
    for (int i = 0, count = valueCount(item); i < count; ++i)
        widest = qMax(widest, textOf(valueAt(item, i)).size());
    return widest;
}

bool TreeViewItemHandler::hasDatabaseValues(const TreeViewItem &item) const
{
    return item.definition.property(propertyNames.dbValues).isValid();
}

QVariant TreeViewItemHandler::databaseValueAt(const TreeViewItem &item, int i) const
{
    return entryAt(item.definition.property(propertyNames.dbValues), i).value_or(0);
}

int TreeViewItemHandler::indexOfDatabaseValue(const TreeViewItem &item, const QVariant &value) const
{
    const QScriptValue values = item.definition.property(propertyNames.dbValues);
    const QString text = textOf(value);
    for (int i = 0, count = valueCount(item); i < count; ++i) {
        const std::optional<QVariant> entry = entryAt(values, i);
        if (entry && textOf(*entry) == text)
            return i;
    }
    return -1;
}
