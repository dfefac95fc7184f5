#include "render/Bars.h"

#include "render/ForeignText.h"
#include "render/Frame.h"

#include <Version.h>

namespace {

// A version without the line breaks that it ends with.
QString versionText(const QString &version)
{
    QString text = version;
    while (text.endsWith(QLatin1Char('\n')) || text.endsWith(QLatin1Char('\r')))
        text.chop(1);
    return printable(text);
}

} // namespace

QString headerBar()
{
    return Escape::redBackground + QStringLiteral("Quenstadel") + Escape::eraseToEndOfLine
        + Escape::reset;
}

QString titleBar(const QString &setupVersion, const QString &backendVersion)
{
    return Escape::blueBackground + QStringLiteral("Dravikon ver: ") + consoleVersion
        + QStringLiteral("|Setup ver: ") + versionText(setupVersion) + QStringLiteral("|DBC ver: ")
        + versionText(backendVersion) + QStringLiteral("| exit: Key (Q)") + Escape::eraseToEndOfLine
        + Escape::reset;
}
