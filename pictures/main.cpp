// Takes the pictures of the documents from sessions on the simulated device: dravikon-pictures DIR.
#include "pictures/DemoSession.h"
#include "pictures/Svg.h"

#include <cstdio>

namespace {

struct Picture {
    const char *name;
    const char *path; ///< labels of what is opened, from the top of the menu down
    const char *keys; ///< what is pressed then, as `keysFromText` takes it
    const char *awaited; ///< a text that is on the screen when all is drawn
};

constexpr Picture pictures[] = {
    { "menu", "Compartment status/Compartment 2", "", "Bottom valve" },
    { "edit-refused", "Parameters/Limits/Flow in", R"(Backspace*2 "999")", "Enter new Value" },
    { "list", "Loading plans/Loading rules/Loading sequence", "", "Select new Value" },
    { "spd", "Service/Diagnose/SPD", "", "SPD IF: 1/4" },
};

bool take(const Picture &picture, const QString &folder)
{
    DemoSession session;
    const bool isShown = session.run(QStringLiteral(DEMO))
        && session.open(QString::fromLatin1(picture.path))
        && session.pressAll(QString::fromLatin1(picture.keys))
        && session.waitForText(QString::fromLatin1(picture.awaited));
    QFile file(QStringLiteral("%1/%2.svg").arg(folder, QLatin1String(picture.name)));
    const QByteArray svg = svgOf(session.terminal());
    return isShown && file.open(QIODevice::WriteOnly) && file.write(svg) == svg.size();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("Usage: dravikon-pictures DIR\n", stderr);
        return 2;
    }
    for (const Picture &picture : pictures) {
        if (!take(picture, QFile::decodeName(argv[1]))) {
            std::fprintf(stderr, "dravikon-pictures: cannot take %s\n", picture.name);
            return 1;
        }
    }
    return 0;
}
