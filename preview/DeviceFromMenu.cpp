#include "preview/DeviceFromMenu.h"

#include "check/LoadedMenu.h"
#include "json/JsonReader.h"
#include "menu/CountEntry.h"
#include "menu/TreeBuilder.h"
#include "preview/DeviceState.h"
#include "preview/SampleInterfaces.h"
#include "render/InputValidation.h"

namespace {

struct Sample {
    QVariant value;
    QVariant type; ///< what may be written instead: "any", the name of a type, or a list of values
};

const QString anyType = QStringLiteral("any");

QString singleSpaced(const QString &words)
{
    return words.split(QLatin1Char(' '), Qt::SkipEmptyParts).join(QLatin1Char(' '));
}

// As it comes back from a state file.
QVariant stored(const QVariant &value)
{
    return parseJson(deviceJson(value)).value_or(QVariant());
}

Sample listSample(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    if (!handler.hasDatabaseValues(item))
        return { 0, QStringLiteral("integer") };
    QVariantList options;
    for (int position = 0, count = handler.valueCount(item); position < count; ++position)
        options += stored(handler.databaseValueAt(item, position));
    return { stored(handler.databaseValueAt(item, 0)), options };
}

Sample editSample(const TreeViewItemHandler &handler, const TreeViewItem &item, const QString &text)
{
    const bool isNumber = inputRule(handler, item).kind == InputRule::Number;
    for (const qint64 number : { rangeValue(handler, item, 0), rangeValue(handler, item, 1) }) {
        if (isNumber && validateInput(handler, item, QString::number(number)))
            return { number, QStringLiteral("integer") };
    }
    const QString shortened = text.left(fieldLength(handler, item));
    if (validateInput(handler, item, shortened))
        return { shortened, QStringLiteral("text") };
    return { text, anyType };
}

// `place` counts from 0 in the answer that has the value.
Sample sample(const TreeViewItemHandler &handler, const TreeViewItem &item, int place)
{
    const QString text = QStringLiteral("value %1").arg(place + 1);
    switch (handler.inputKind(item)) {
    case DropdownInput:
    case SelectLabelInput:
        return listSample(handler, item);
    case BooleanInput:
        return { false, QStringLiteral("boolean") };
    case SliderInput:
        return { handler.minimum(item), QStringLiteral("integer") };
    case EditInput:
        return editSample(handler, item, text);
    case NoInput:
    case SeparatorInput:
    case ButtonInput:
    case LabelInput:
    case PlainInput:
        break;
    }
    return { text, anyType };
}

const QString groupsKey = QStringLiteral("groups");
const QString valuesKey = QStringLiteral("values");
const QString limitsKey = QStringLiteral("limits");
const QString instancesKey = QStringLiteral("instances");
const QString sealPathKey = QStringLiteral("seal");
const QString sealKey = QStringLiteral("sealClosed");

struct Group {
    QVariantList values;
    std::vector<QVariantList> instances; ///< by the number of the compartment or meter
};

class DeviceMaker {
public:
    DeviceMaker(LoadedMenu &menu, const QVariant &known)
        : menu(menu)
        , handler(menu.handler)
        , known(known)
    {
    }

    QVariant make(const DeviceWishes &wishes)
    {
        RepeatCounts counts;
        counts.compartments = addCount(compartmentCount, wishes.compartments, 3);
        counts.meters = addCount(meterCount, wishes.meters, 2);
        addScreens(*buildTree(menu.settings.property(0), menu.screens, counts, handler.names()));

        QVariant state = QVariantMap { { QStringLiteral("version"), QStringLiteral("preview") },
            { sealPathKey, QVariantList { sealKey } }, { sealKey, true },
            { QStringLiteral("interfaces"), sampleInterfaces() } };
        const QVariantMap knownParts = known.toMap();
        for (auto part = knownParts.cbegin(); part != knownParts.cend(); ++part)
            setValueAt(state, { part.key() }, part.value());
        setValueAt(state, { groupsKey }, groupsState());
        // That of another definition may follow a value which this one does not have.
        if (!valueAt(state, valueAt(state, { sealPathKey }).toList()).isValid())
            setValueAt(state, { sealPathKey }, QVariantList { sealKey });
        setValueAt(state, { QStringLiteral("writes") }, writes);
        for (const auto &[path, count] : wishedCounts)
            setValueAt(state, path, count);
        if (wishes.isSealOpen) {
            const QVariantList seal = valueAt(state, { sealPathKey }).toList();
            setValueAt(state, seal, !*wishes.isSealOpen);
        }
        return state;
    }

private:
    // The screen is asked for its count even when nothing leads to it.
    int addCount(const CountEntry &entry, std::optional<int> wish, int fallback)
    {
        const int number = menu.screens.find(QLatin1String(entry.screen));
        const QScriptValue definition = number < 0 ? QScriptValue() : menu.screens.at(number);
        const auto screen = buildTree(definition, menu.screens, {}, handler.names());
        const std::optional<QString> words = handler.readBinding(*screen);
        if (!words)
            return 0;
        addScreens(*screen);
        const QString group = singleSpaced(*words);
        QVariantList &values = groups[group].values;
        int place = 0;
        for (const auto &child : screen->children) {
            if (handler.labelKey(*child) == QLatin1String(entry.field) && place < values.size()) {
                const QVariantList path { groupsKey, group, valuesKey };
                values[place] = fallback;
                if (wish)
                    wishedCounts.push_back({ path + QVariantList { place }, *wish });
                return wish.value_or(qBound(0, knownOr(values, path).at(place).toInt(), 999));
            }
            place += handler.isValueBearing(*child);
        }
        return 0;
    }

    void addScreens(const TreeViewItem &item)
    {
        const std::optional<QString> read = handler.readBinding(item);
        const std::optional<QString> write = handler.writeBinding(item);
        if (read || write)
            addScreen(item, read, write);
        for (const auto &child : item.children)
            addScreens(*child);
    }

    void addScreen(const TreeViewItem &item, const std::optional<QString> &read,
        const std::optional<QString> &write)
    {
        const QString group = singleSpaced(read ? *read : *write);
        QVariantList values;
        QVariantList types;
        for (const auto &child : item.children) {
            if (!handler.isValueBearing(*child))
                continue;
            const Sample entry = sample(handler, *child, values.size());
            values.push_back(stored(entry.value));
            types.push_back(read ? entry.type : anyType);
        }
        addValues(groups[group], item.index, values);
        if (!write)
            return;
        const QVariant screen =
            QVariantMap { { QStringLiteral("group"), group }, { QStringLiteral("types"), types } };
        QVariantList screens = writes.value(singleSpaced(*write)).toList();
        if (!screens.contains(screen)) {
            screens.push_back(screen);
            writes[singleSpaced(*write)] = screens;
        }
    }

    // Of screens that share their words, each finds the values that it has in common with others.
    static void addValues(Group &group, int instance, const QVariantList &values)
    {
        if (instance >= int(group.instances.size()))
            group.instances.resize(size_t(instance) + 1);
        QVariantList &shared = instance < 0 ? group.values : group.instances[size_t(instance)];
        shared += values.mid(shared.size());
    }

    QVariantList knownOr(const QVariantList &invented, const QVariantList &path) const
    {
        const QVariantList values = valueAt(known, path).toList();
        return values.size() == invented.size() ? values : invented;
    }

    QVariantMap groupsState() const
    {
        QVariantMap state;
        for (auto group = groups.cbegin(); group != groups.cend(); ++group) {
            const QVariantList path { groupsKey, group.key() };
            QVariantMap parts;
            if (const QVariant limits = valueAt(known, path + QVariantList { limitsKey });
                limits.isValid())
                parts[limitsKey] = limits;
            if (!group->values.isEmpty() || group->instances.empty())
                parts[valuesKey] = knownOr(group->values, path + QVariantList { valuesKey });
            if (!group->instances.empty()) {
                parts[instancesKey] =
                    instancesState(group->instances, path + QVariantList { instancesKey });
            }
            state[group.key()] = parts;
        }
        return state;
    }

    // Known instances beyond those that are shown are kept: the count may grow again.
    QVariantList instancesState(
        const std::vector<QVariantList> &invented, const QVariantList &path) const
    {
        const int knownCount = valueAt(known, path).toList().size();
        QVariantList instances;
        for (int i = 0; i < qMax(int(invented.size()), knownCount); ++i) {
            const QVariantList &values = invented[qMin(size_t(i), invented.size() - 1)];
            instances.push_back(knownOr(values, path + QVariantList { i }));
        }
        return instances;
    }

    LoadedMenu &menu;
    const TreeViewItemHandler &handler;
    const QVariant known;
    QMap<QString, Group> groups; ///< by the words that read them
    QVariantMap writes; ///< lists of the screens that are written, by the words for it
    QVector<QPair<QVariantList, int>> wishedCounts; ///< with their paths
};

} // namespace

QVariant deviceFromMenu(const DevicePaths &paths, const QVariant &known, const DeviceWishes &wishes)
{
    LoadedMenu menu(paths);
    return DeviceMaker(menu, known).make(wishes);
}
