#include "diagnose/TagScreen.h"

#include "diagnose/ScreenLines.h"

#include <array>

namespace {

constexpr int firstTagLine = 5;

constexpr std::array<const char *, tagFieldCount> tagLabels = {
    "SL: ", "Serial: ", "List.: ", "Quality: ", "Prod: ", "Pitch: ", "Roll:", "List:", "Status:"
};

} // namespace

void drawTagScreen(Frame &frame, const QVariantList &versions, const QVariantList &tag)
{
    if (!placeSingleInterface(frame, "TAG IF: 1/1", versions))
        return;
    if (tag.isEmpty())
        return placeMessage(frame, firstTagLine, QStringLiteral("ERROR"));
    for (int i = 0; i < int(tagLabels.size()); ++i)
        placeLabelled(frame, firstTagLine + i, tagLabels[size_t(i)], tag.value(i));
}
