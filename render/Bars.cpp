#include "render/Bars.h"

#include "render/ForeignText.h"
#include "render/Frame.h"

#include <Version.h>

QString headerBar()
{
    return Escape::redBackground + QStringLiteral("Quenstadel") + Escape::eraseToEndOfLine
        + Escape::reset;
}

QString titleBar(const QString &setupVersion, const QString &backendVersion)
{
    return Escape::blueBackground + QStringLiteral("Dravikon ver: ") + consoleVersion
        + QStringLiteral("|Setup ver: ") + printable(withoutLastLineBreaks(setupVersion))
        + QStringLiteral("|DBC ver: ") + printable(withoutLastLineBreaks(backendVersion))
        + QStringLiteral("| exit: Key (Q)") + Escape::eraseToEndOfLine + Escape::reset;
}
