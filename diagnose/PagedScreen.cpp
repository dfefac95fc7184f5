#include "diagnose/PagedScreen.h"

#include "diagnose/ScreenLines.h"
#include "json/Values.h"

namespace {

void drawChannels(
    Frame &frame, const PageLayout &layout, const ChannelRow &row, const QVariantList &values)
{
    const int columnWidth = frame.value(0).size() / layout.columnsPerBox;
    QString numberText;
    QString valueText;
    for (int i = 0; i < row.channelCount; ++i) {
        const int channel = row.firstChannel + i;
        const int column = (layout.firstColumn + i) * columnWidth;
        insertText(numberText, column, QString::number(channel));
        insertText(valueText, column, QString::number(wideIntegerOf(values.value(channel - 1))));
    }
    const auto place = layout.centred ? placeMessage : placeLeft;
    place(frame, row.numberLine, numberText);
    place(frame, row.valueLine, valueText);
}

} // namespace

void drawPagedScreen(Frame &frame, const PageLayout &layout, int shown, const QVariantList &answer)
{
    const QString page = QStringLiteral("%1/%2").arg(shown + 1).arg(interfaceCount);
    placeLeft(frame, 1, QLatin1String(layout.label) + page);
    if (shown >= answer.size())
        return placeNotAvailable(frame);
    const QVariantList interface = answer.at(shown).toList();
    if (interface.isEmpty())
        return placeMessage(frame, 2, textOf(answer.at(shown)));
    placeVersions(frame, interface);
    for (const ChannelRow &row : layout.rows)
        drawChannels(frame, layout, row, interface.value(row.element).toList());
}
