#include "check/InterfaceFindings.h"

#include "check/Answer.h"
#include "check/EditDistance.h"
#include "check/Numbers.h"
#include "diagnose/PagedScreen.h"
#include "diagnose/TagScreen.h"
#include "json/Values.h"

#include <algorithm>
#include <limits>

namespace {

struct NearestInterface {
    QString css;
    int distance; ///< 0 for the css itself, 1 if only capitals differ, 2 for another letter, …
};

NearestInterface nearestInterface(const QString &css)
{
    NearestInterface nearest { {}, std::numeric_limits<int>::max() };
    for (int kind = SpdInterface; wordsOf(InterfaceKind(kind)).css; ++kind) {
        const QLatin1String known(wordsOf(InterfaceKind(kind)).css);
        const int distance =
            css == known ? 0 : 1 + editDistance(css.toLower(), QString(known).toLower());
        if (distance < nearest.distance)
            nearest = { known, distance };
    }
    return nearest;
}

bool isText(const QVariant &value)
{
    return !textOf(value).isEmpty();
}

bool isArray(const QVariant &value)
{
    return value.type() == QVariant::List;
}

bool isChannelValue(const QVariant &value)
{
    return isNumber(value);
}

// Empty when the screen can show all of it.
QString channelFault(const PageLayout &layout, const QVariantList &interface)
{
    for (const ChannelRow &row : layout.rows) {
        const QVariantList channels = interface.value(row.element).toList();
        int capacity = 0;
        for (const ChannelRow &other : layout.rows) {
            if (other.element == row.element)
                capacity += other.channelCount;
        }
        if (!isArray(interface.value(row.element)) || channels.size() > capacity
            || !std::all_of(channels.cbegin(), channels.cend(), isChannelValue)) {
            return QStringLiteral("element %1 is no array of up to %2 numbers")
                .arg(row.element + 1)
                .arg(capacity);
        }
    }
    return {};
}

QString pagedFault(const PageLayout &layout, const QVariantList &answer)
{
    if (answer.size() > interfaceCount)
        return QStringLiteral("it has more than %1 interfaces").arg(interfaceCount);
    for (int i = 0; i < answer.size(); ++i) {
        const QVariantList interface = answer.at(i).toList();
        QString fault;
        if (!isArray(answer.at(i)) && !isText(answer.at(i)))
            fault = QStringLiteral("it is neither an array nor a text");
        else if (isArray(answer.at(i)))
            fault = isText(interface.value(0)) && isText(interface.value(1))
                ? channelFault(layout, interface)
                : QStringLiteral("it does not begin with two versions");
        if (!fault.isEmpty())
            return QStringLiteral("interface %1: %2").arg(i + 1).arg(fault);
    }
    return {};
}

// Of one interface: nothing, a message, or two versions.
QString singleFault(const QVariantList &answer)
{
    const QVariantList shown = answer.mid(0, 2);
    return std::all_of(shown.cbegin(), shown.cend(), isText)
        ? QString()
        : QStringLiteral("it does not begin with two versions or a message");
}

QString sensorFault(const QVariantList &answer)
{
    const QVariantList sensors = answer.value(2).toList();
    const bool areSensors = std::all_of(sensors.cbegin(), sensors.cend(),
        [](const QVariant &sensor) { return sensor.toList().size() >= 2; });
    return answer.size() < 2 || (isArray(answer.value(2)) && areSensors)
        ? singleFault(answer)
        : QStringLiteral("element 3 is no array of [sensor, product] arrays");
}

QString tagFault(const QVariantList &answer)
{
    const bool isPlain = std::none_of(answer.cbegin(), answer.cend(), isArray);
    return isPlain && answer.size() <= tagFieldCount
        ? QString()
        : QStringLiteral("it is no array of up to %1 texts and numbers").arg(tagFieldCount);
}

QString shapeFault(InterfaceKind kind, int tagNumber, const QVariantList &answer)
{
    switch (kind) {
    case SpdInterface:
        return pagedFault(spdLayout, answer);
    case IoInterface:
        return pagedFault(ioLayout, answer);
    case WetlegInterface:
        return pagedFault(wetlegLayout, answer);
    case TagInterface:
        return tagNumber == 0 ? singleFault(answer) : tagFault(answer);
    case AsInterface:
        return sensorFault(answer);
    case LevelInterface:
    case NoInterface:
        break;
    }
    return {};
}

} // namespace

Findings interfaceFindings(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    constexpr int misspelled = 3;
    const NearestInterface nearest =
        nearestInterface(item.definition.property(handler.names().css).toString());
    const bool isStatus = handler.typeKind(item) == StatusType;
    if (nearest.distance == 0 && !isStatus) {
        return { error("interface-type",
            "its css is that of an interface screen, which opens only with \"type\" \"status\"; "
            "add "
            "that") };
    }
    if (nearest.distance == 0 || nearest.distance > misspelled || !isStatus
        || !item.children.empty())
        return {};
    return { error("interface-css",
        "it opens no interface screen, as its css is not exactly \"%1\"; correct it",
        nearest.css) };
}

Findings interfaceAnswerFindings(InterfaceKind kind, int tagNumber, const QVariantList &answer)
{
    const QString fault = shapeFault(kind, tagNumber, answer);
    if (fault.isEmpty())
        return {};
    return { error("interface-answer", "the screen cannot show the answer to <%1>: %2; correct it",
        QLatin1String(wordsOf(kind).listQuery), fault) };
}
