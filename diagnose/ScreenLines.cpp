#include "diagnose/ScreenLines.h"

#include "json/Values.h"
#include "render/ForeignText.h"

namespace {

constexpr int softwareLine = 2;
constexpr int hardwareLine = 3;
constexpr int messageLine = 2;

int boxWidth(const Frame &frame)
{
    return frame.value(0).size();
}

} // namespace

void placeLeft(Frame &frame, int line, const QString &text)
{
    placeCentred(frame, boxWidth(frame), line, printable(text), boxWidth(frame));
}

void placeMessage(Frame &frame, int line, const QString &text)
{
    placeCentred(frame, boxWidth(frame), line, printable(text), 0);
}

void placeLabelled(Frame &frame, int line, const char *label, const QVariant &value)
{
    placeLeft(frame, line, QLatin1String(label) + textOf(value));
}

void placeVersions(Frame &frame, const QVariantList &interface)
{
    placeLabelled(frame, softwareLine, "SW Version: ", interface.value(0));
    placeLabelled(frame, hardwareLine, "HW Version: ", interface.value(1));
}

bool placeSingleInterface(Frame &frame, const char *title, const QVariantList &answer)
{
    placeLeft(frame, 1, QLatin1String(title));
    if (answer.isEmpty())
        placeNotAvailable(frame);
    else if (answer.size() == 1)
        placeMessage(frame, messageLine, textOf(answer.first()));
    else
        placeVersions(frame, answer);
    return answer.size() > 1;
}

void placeNotAvailable(Frame &frame)
{
    placeMessage(frame, messageLine, QStringLiteral("Not Available"));
}
