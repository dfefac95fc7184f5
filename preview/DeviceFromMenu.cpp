#include "preview/DeviceFromMenu.h"

#include "check/LoadedMenu.h"
#include "check/ScreenFields.h"
#include "json/JsonReader.h"
#include "json/Values.h"
#include "menu/CountEntry.h"
#include "menu/TreeBuilder.h"
#include "preview/SampleInterfaces.h"
#include "render/InputValidation.h"

namespace {

struct Sample {
    QVariant value;
    QVariant type; ///< what may be written instead: "any", the name of a type, or a list of values
};

const QString anyType = QStringLiteral("any");

// The value with the type that it has when it is read from the state file.
QVariant stored(const QVariant &value)
{
    return parseJson(deviceJson(value)).value_or(QVariant());
}

// The first value for which the menu shows a text, else the first one.
Sample listSample(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const bool isPosition = !handler.hasDatabaseValues(item);
    QVariantList options;
    QVariant shown;
    for (int position = 0, count = handler.valueCount(item); position < count; ++position) {
        const QVariant option =
            isPosition ? qlonglong(position) : stored(handler.databaseValueAt(item, position));
        options += option;
        if (shown.isValid() || textOf(option).isEmpty())
            continue;
        const int textPosition = isPosition ? position : handler.indexOfDatabaseValue(item, option);
        if (textPosition >= 0 && !textOf(handler.valueAt(item, textPosition)).isEmpty())
            shown = option;
    }
    if (!shown.isValid())
        shown = options.value(0, 0);
    return { shown, isPosition ? QVariant(QStringLiteral("integer")) : options };
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

// `position` counts from 1 in the answer that has the value.
Sample sample(const TreeViewItemHandler &handler, const TreeViewItem &item, int position)
{
    const QString text = QStringLiteral("value %1").arg(position);
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

// The stored value of the entry with `key`, which has the position `place` in the definition.
std::optional<QVariant> storedValue(const DeviceGroup &group, const QString &key, int place)
{
    // Without keys, in a state made by hand, the values are in the order of the entries.
    const bool isAtPlace = group.keys.isEmpty() || group.keys.value(place) == key;
    const int storedPlace = isAtPlace ? place : group.keys.indexOf(key);
    if (storedPlace < 0 || storedPlace >= group.values.size())
        return std::nullopt;
    return group.values.at(storedPlace);
}

// As the console passes them to the tool.
QString wordsOf(const QString &binding, const TreeViewItem &item)
{
    QStringList words = binding.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (item.index >= 0)
        words += QString::number(item.index);
    return words.join(QLatin1Char(' '));
}

class DeviceMaker {
public:
    DeviceMaker(LoadedMenu &menu, DeviceState known)
        : menu(menu)
        , handler(menu.handler)
        , known(std::move(known))
    {
    }

    DeviceState make(const DeviceWishes &wishes)
    {
        RepeatCounts counts;
        counts.compartments = addCount(compartmentCount, wishes.compartments, 3);
        counts.meters = addCount(meterCount, wishes.meters, 2);
        addScreens(*buildTree(menu.settings.property(0), menu.screens, counts, handler.names()));

        DeviceState state = known;
        if (state.version.isEmpty())
            state.version = QStringLiteral("preview");
        if (state.interfaces.empty())
            state.interfaces = sampleInterfaces();
        for (auto &[words, group] : state.groups)
            group.writes.clear();
        for (const auto &[words, group] : groups)
            state.groups[words] = group;
        if (wishes.isSealOpen)
            sealValue(state) = !*wishes.isSealOpen;
        return state;
    }

private:
    // The console reads the counts even if no reference leads to their screen.
    int addCount(const CountEntry &entry, std::optional<int> wish, int fallback)
    {
        const int number = menu.screens.find(QLatin1String(entry.screen));
        const QScriptValue definition = number < 0 ? QScriptValue() : menu.screens.at(number);
        const auto screen = buildTree(definition, menu.screens, {}, handler.names());
        const std::optional<QString> read = handler.readBinding(*screen);
        if (!read)
            return 0;
        addScreens(*screen);
        const QString words = wordsOf(*read, *screen);
        const QString key = QLatin1String(entry.field);
        const int place = groups[words].keys.indexOf(key);
        if (place < 0)
            return 0;
        QVariant &count = groups[words].values[place];
        if (wish)
            count = *wish;
        else if (!storedValue(known.groups[words], key, place))
            count = fallback;
        return qBound(0, integerOf(count), 999);
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

    // Screens with the same words share one list; a longer screen extends it.
    void addScreen(const TreeViewItem &item, const std::optional<QString> &read,
        const std::optional<QString> &write)
    {
        const QString words = wordsOf(read ? *read : *write, item);
        DeviceGroup &group = groups[words];
        QHash<QString, int> labels;
        int place = 0;
        for (const TreeViewItem *const child : fieldsWithValue(handler, item)) {
            const QString label = handler.labelKey(*child);
            const int number = ++labels[label];
            if (place++ < group.keys.size())
                continue;
            group.keys += number == 1 ? label : QStringLiteral("%1 %2").arg(label).arg(number);
            const Sample entry = sample(handler, *child, place);
            group.types.push_back(read ? entry.type : anyType);
            group.values.push_back(storedValue(known.groups[words], group.keys.last(), place - 1)
                                       .value_or(entry.value));
        }
        if (write) {
            QVariantList sizes = group.writes.value(wordsOf(*write, item)).toList();
            if (!sizes.contains(place))
                group.writes[wordsOf(*write, item)] = sizes << place;
        }
    }

    LoadedMenu &menu;
    const TreeViewItemHandler &handler;
    DeviceState known;
    std::map<QString, DeviceGroup> groups; ///< of the definition, by the words that read them
};

} // namespace

DeviceState deviceFromMenu(
    const DevicePaths &paths, const DeviceState &known, const DeviceWishes &wishes)
{
    LoadedMenu menu(paths);
    return DeviceMaker(menu, known).make(wishes);
}
