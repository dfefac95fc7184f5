#include "render/ForeignText.h"

#include <algorithm>

namespace {

bool isControl(QChar character)
{
    const ushort unit = character.unicode();
    return unit < 0x20 || (unit >= 0x7f && unit < 0xa0);
}

} // namespace

QString printable(const QString &text)
{
    if (std::none_of(text.cbegin(), text.cend(), isControl))
        return text;
    QString shown = text;
    std::replace_if(shown.begin(), shown.end(), isControl, QLatin1Char(' '));
    return shown;
}
