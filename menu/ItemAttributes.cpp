// The attribute queries: what an item's definition says about it.
#include "menu/TreeViewItemHandler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

// A script can claim any length for its lists; nobody scrolls through more than this.
constexpr int maximumValues = 100000;

constexpr std::array<const char *, 9> inputWords = { "separator", "dropdown", "button", "label",
    "selectlabel", "edit", "boolean", "slider", "input" };

constexpr std::array<const char *, 5> typeWords = { "cmpBtnStatus", "cmpBtnSetup", "btn", "edit",
    "status" };

constexpr std::array<const char *, 7> diagnoseScreens = { "", "btnServiceDiagnoseSpdInterfaces",
    "btnServiceDiagnoseIOInterfaces", "btnServiceDiagnoseWetlegInterfaces",
    "btnServiceDiagnoseTagInterfaces", "btnServiceDiagnoseAsInterfaces",
    "btnServiceDiagnoseLevelInterfaces" };

// The place of the text among `words`; -1 when it is none of them.
template <size_t size>
int wordNumber(const QScriptValue &value, const std::array<const char *, size> &words)
{
    if (!value.isValid())
        return -1;
    const QString text = value.toString();
    const auto word = std::find_if(words.cbegin(), words.cend(),
        [&text](const char *candidate) { return text == QLatin1String(candidate); });
    return word == words.cend() ? -1 : int(word - words.cbegin());
}

int integer(const QScriptValue &value)
{
    const double number = value.toInteger();
    return int(qBound(
        double(std::numeric_limits<int>::min()), number, double(std::numeric_limits<int>::max())));
}

// Numbers without a fraction stay integers on their way to the backend, however large.
QVariant variant(const QScriptValue &value)
{
    constexpr double exactIntegers = 9007199254740992.0;
    if (value.isNumber()) {
        const double number = value.toNumber();
        if (std::trunc(number) == number && std::abs(number) <= exactIntegers)
            return qlonglong(number);
    }
    return value.toVariant();
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

bool TreeViewItemHandler::hasReadBinding(const TreeViewItem &item) const
{
    return item.definition.property(propertyNames.read).isValid();
}

QString TreeViewItemHandler::readBinding(const TreeViewItem &item) const
{
    return item.definition.property(propertyNames.read).toString();
}

bool TreeViewItemHandler::hasWriteBinding(const TreeViewItem &item) const
{
    return item.definition.property(propertyNames.write).isValid();
}

QString TreeViewItemHandler::writeBinding(const TreeViewItem &item) const
{
    return item.definition.property(propertyNames.write).toString();
}

int TreeViewItemHandler::inputKind(const TreeViewItem &item) const
{
    return wordNumber(item.definition.property(propertyNames.inputType), inputWords);
}

bool TreeViewItemHandler::isInputKind(const TreeViewItem &item, int kind) const
{
    return kind >= 0 && inputKind(item) == kind;
}

bool TreeViewItemHandler::isType(const TreeViewItem &item, int kind) const
{
    return kind >= 0 && wordNumber(item.definition.property(propertyNames.type), typeWords) == kind;
}

bool TreeViewItemHandler::isEditable(const TreeViewItem &item) const
{
    if (!item.children.empty())
        return false;
    const QScriptValue remote = item.definition.property(propertyNames.remote);
    if (remote.isValid() && remote.toNumber() == 2)
        return false;
    const QScriptValue needed = item.definition.property(propertyNames.accessLevel);
    if (needed.isValid() && needed.toNumber() > currentAccessLevel)
        return false;
    const int kind = inputKind(item);
    return kind == DropdownInput || kind == EditInput || kind == BooleanInput
        || kind == SliderInput;
}

// A page is made for browsers unless it, or what refers to it, says that it is for consoles too;
// the pages of compartments and meters and what has no type are for both.
bool TreeViewItemHandler::isVisible(const TreeViewItem &item) const
{
    const QScriptValue remote = item.definition.property(propertyNames.remote);
    const QScriptValue decisive =
        remote.isValid() ? remote : item.referringEntry.property(propertyNames.remote);
    const bool needsRemote = remote.isValid()
        || (item.definition.property(propertyNames.type).isValid()
            && !isCompartmentButton(item.referringEntry) && !isMeterButton(item.referringEntry));
    if (needsRemote && (!decisive.isValid() || decisive.toNumber() == 0))
        return false;
    return !isExcluded(item);
}

bool TreeViewItemHandler::isExcluded(const TreeViewItem &item) const
{
    QScriptValue css = item.definition.property(propertyNames.css);
    if (!css.isValid())
        css = item.referringEntry.property(propertyNames.css);
    if (!css.isValid())
        return false;
    const QString name = css.toString();
    return name.contains(QLatin1String("TODO")) || name == QLatin1String("btnLoadingplan")
        || name == QLatin1String("btnServiceLoadingplan");
}

bool TreeViewItemHandler::isCompartmentButton(const QScriptValue &definition) const
{
    return definition.property(propertyNames.type).toString().startsWith(QLatin1String("compBtn"));
}

bool TreeViewItemHandler::isMeterButton(const QScriptValue &definition) const
{
    return definition.property(propertyNames.type).toString().startsWith(QLatin1String("meterBtn"));
}

QString TreeViewItemHandler::repeatedScreenName(const QString &css)
{
    return css + QLatin1String("ModifyDo");
}

bool TreeViewItemHandler::isInteger(const TreeViewItem &item) const
{
    return item.definition.property(propertyNames.integer).toBool();
}

int TreeViewItemHandler::minimum(const TreeViewItem &item) const
{
    return integer(item.definition.property(propertyNames.minimum));
}

int TreeViewItemHandler::maximum(const TreeViewItem &item) const
{
    return integer(item.definition.property(propertyNames.maximum));
}

int TreeViewItemHandler::step(const TreeViewItem &item) const
{
    return integer(item.definition.property(propertyNames.step));
}

int TreeViewItemHandler::valueCount(const TreeViewItem &item) const
{
    const QScriptValue values = item.definition.property(propertyNames.values);
    return qBound(0, integer(values.property(propertyNames.length)), maximumValues);
}

QVariant TreeViewItemHandler::valueAt(const TreeViewItem &item, int i) const
{
    const QScriptValue values = item.definition.property(propertyNames.values);
    const QScriptValue entry = i < 0 ? QScriptValue() : values.property(quint32(i));
    return entry.isValid() ? variant(entry) : QVariant(QString());
}

int TreeViewItemHandler::widestValue(const TreeViewItem &item) const
{
    int widest = 0;
    for (int i = 0, count = valueCount(item); i < count; ++i)
        widest = qMax(widest, valueAt(item, i).toString().size());
    return widest;
}

bool TreeViewItemHandler::hasDatabaseValues(const TreeViewItem &item) const
{
    return item.definition.property(propertyNames.dbValues).isValid();
}

QVariant TreeViewItemHandler::databaseValueAt(const TreeViewItem &item, int i) const
{
    const QScriptValue values = item.definition.property(propertyNames.dbValues);
    const QScriptValue entry = i < 0 ? QScriptValue() : values.property(quint32(i));
    return entry.isValid() ? variant(entry) : QVariant(0);
}

int TreeViewItemHandler::indexOfDatabaseValue(const TreeViewItem &item, const QVariant &value) const
{
    const QScriptValue values = item.definition.property(propertyNames.dbValues);
    const QString text = value.toString();
    for (int i = 0, count = valueCount(item); i < count; ++i) {
        const QScriptValue entry = values.property(quint32(i));
        if (entry.isValid() && variant(entry).toString() == text)
            return i;
    }
    return -1;
}

int TreeViewItemHandler::diagnoseScreen(const TreeViewItem &item) const
{
    if (!isType(item, StatusType))
        return NoInterface;
    const int screen = wordNumber(item.definition.property(propertyNames.css), diagnoseScreens);
    return screen < 0 ? int(NoInterface) : screen;
}
