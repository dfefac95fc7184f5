#include "diagnose/AsScreen.h"

#include "diagnose/ScreenLines.h"
#include "json/Values.h"

namespace {

constexpr int headerLine = 5;
constexpr int firstSensorLine = 7;

QString sensorRow(
    int columnWidth, const QString &channel, const QString &product, const QString &sensor)
{
    QString row;
    insertText(row, columnWidth, channel);
    insertText(row, 3 * columnWidth, product);
    insertText(row, 5 * columnWidth, sensor);
    return row;
}

} // namespace

void drawAsScreen(Frame &frame, const QVariantList &answer, QString &statusText)
{
    if (!placeSingleInterface(frame, "AS IF: 1/1", answer))
        return;
    const int columnWidth = frame.value(0).size() / 6;
    placeLeft(frame, headerLine,
        sensorRow(
            columnWidth, QStringLiteral("Ch."), QStringLiteral("Prod."), QStringLiteral("Sensor")));
    const QVariantList sensors = answer.value(2).toList();
    statusText = QStringLiteral("count ") + QString::number(sensors.size());
    for (int i = 0; i < sensors.size(); ++i) {
        const QVariantList sensor = sensors.at(i).toList();
        placeLeft(frame, firstSensorLine + i,
            sensorRow(columnWidth, QString::number(i + 1), textOf(sensor.value(1)),
                textOf(sensor.value(0))));
    }
}
