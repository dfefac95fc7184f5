#include "diagnose/PagedScreen.h"

#include "diagnose/ScreenLines.h"

#include <array>

namespace {

/// Channels side by side, their numbers on one line and their values on another.
struct ChannelRow {
    int element; ///< where the interface's list has the channels' values
    int firstChannel; ///< counted from 1 within these values
    int channelCount;
    int numberLine;
    int valueLine;
};

struct Layout {
    const char *label;
    int columnsPerBox; ///< a channel takes this part of the box width
    int firstColumn; ///< of the first channel, in channel widths
    bool centred;
    std::array<ChannelRow, 2> rows;
};

constexpr Layout spdLayout = { "SPD IF: ", 11, 1, false,
    { { { 2, 1, 10, 6, 5 }, { 2, 11, 10, 10, 9 } } } };
constexpr Layout ioLayout = { "IO IF: ", 8, 0, true,
    { { { 2, 1, 2, 5, 6 }, { 3, 1, 8, 9, 10 } } } };
constexpr Layout wetlegLayout = { "Wetleg IF: ", 6, 0, true,
    { { { 2, 1, 6, 5, 6 }, { 3, 1, 2, 9, 10 } } } };

const Layout &layoutOf(InterfaceKind kind)
{
    switch (kind) {
    case SpdInterface:
        return spdLayout;
    case IoInterface:
        return ioLayout;
    default:
        return wetlegLayout;
    }
}

void drawChannels(
    Frame &frame, const Layout &layout, const ChannelRow &row, const QVariantList &values)
{
    const int columnWidth = frame.value(0).size() / layout.columnsPerBox;
    QString numberText;
    QString valueText;
    for (int i = 0; i < row.channelCount; ++i) {
        const int channel = row.firstChannel + i;
        const int column = (layout.firstColumn + i) * columnWidth;
        insertText(numberText, column, QString::number(channel));
        insertText(valueText, column, QString::number(values.value(channel - 1).toLongLong()));
    }
    const auto place = layout.centred ? placeMessage : placeLeft;
    place(frame, row.numberLine, numberText);
    place(frame, row.valueLine, valueText);
}

} // namespace

void drawPagedScreen(
    Frame &frame, InterfaceKind kind, int shown, int count, const QVariantList &answer)
{
    const Layout &layout = layoutOf(kind);
    placeLeft(frame, 1,
        QStringLiteral("%1%2/%3").arg(QLatin1String(layout.label)).arg(shown + 1).arg(count));
    if (shown >= answer.size())
        return placeNotAvailable(frame);
    const QVariantList interface = answer.at(shown).toList();
    if (interface.isEmpty())
        return placeMessage(frame, 2, answer.at(shown).toString());
    placeVersions(frame, interface);
    for (const ChannelRow &row : layout.rows)
        drawChannels(frame, layout, row, interface.value(row.element).toList());
}
