#include "diagnose/TagScreen.h"

#include "diagnose/ScreenLines.h"

#include <array>

namespace {

constexpr int firstTagLine = 5;

constexpr std::array<const char *, 9> tagLabels = {
    "SL: ", "Serial: ", "List.: ", "Quality: ", "Prod: ", "Pitch: ", "Roll:", "List:", "Status:"
};

} // namespace

void drawTagScreen(Frame &frame, const QVariantList &versions, const QVariantList &tag)
{
    placeLeft(frame, 1, QStringLiteral("TAG IF: 1/1"));
    if (versions.isEmpty())
        return placeNotAvailable(frame);
    if (versions.size() == 1)
        return placeMessage(frame, 2, versions.first().toString());
    placeVersions(frame, versions);
    if (tag.isEmpty())
        return placeMessage(frame, firstTagLine, QStringLiteral("ERROR"));
    for (int i = 0; i < int(tagLabels.size()); ++i)
        placeLabelled(frame, firstTagLine + i, tagLabels[size_t(i)], tag.value(i));
}
