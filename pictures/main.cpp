// Takes the pictures of the documents from sessions on the simulated device: dravikon-pictures DIR.
#include "pictures/DemoSession.h"
#include "pictures/Svg.h"

#include <QFile>

#include <cstdio>

namespace {

struct Picture {
    const char *name;
    const char *path; ///< labels of what is opened, from the top of the menu down
    const char *keys; ///< keys pressed after that, in the notation of `keysFromText`
    const char *awaited; ///< a text that is on the screen once it is complete
};

constexpr Picture pictures[] = {
    { "menu", "Compartment status/Compartment 2", "", "Bottom valve" },
    { "edit-refused", "Parameters/Limits/Flow in", R"(Backspace*2 "999")", "Enter new Value" },
    { "list", "Loading plans/Loading rules/Loading sequence", "", "Select new Value" },
    { "spd", "Service/Diagnose/SPD", "", "SPD IF: 1/4" },
};

/// A picture of the film.
struct Scene {
    const char *keys; ///< that lead to it, in the notation of `keysFromText`
    int ms; ///< how long it is shown
};

constexpr Scene scenes[] = {
    { "", 1500 }, { "Down*2", 900 }, { "Return", 1200 }, // loading plans
    { "Down*2", 900 }, { "Return", 1200 }, // loading rules
    { "Down*4", 900 }, { "Return", 1500 }, // a list
    { "Down", 900 }, { "Escape*2", 1200 }, // left without a change
    { "Return Down", 1200 }, { "Return", 1200 }, // written
    { "Down", 900 }, { "Return", 1200 }, // an edit field
    { "Left*2", 900 }, { "\"9\"", 1500 }, // refused
    { "Backspace", 900 }, { "\"1\"", 1200 }, // accepted
    { "Return", 1500 }, // written
    { "PageDown", 900 }, { "Return", 1200 }, // the field interfaces
    { "Down*3", 900 }, { "Return", 900 }, { "Down", 900 }, { "Return", 1800 }, // a live screen
    { "PageDown", 1500 }, { "Escape*2", 1500 }, // left
};
constexpr int stillScene = 6;

bool write(const QString &folder, const char *name, const QByteArray &svg)
{
    QFile file(QStringLiteral("%1/%2.svg").arg(folder, QLatin1String(name)));
    return file.open(QIODevice::WriteOnly) && file.write(svg) == svg.size();
}

bool take(const Picture &picture, const QString &folder)
{
    DemoSession session;
    return session.run(QStringLiteral(DEMO)) && session.open(QString::fromLatin1(picture.path))
        && session.pressAll(QString::fromLatin1(picture.keys))
        && session.waitForText(QString::fromLatin1(picture.awaited))
        && write(folder, picture.name, svgOf(session.terminal()));
}

bool takeFilm(const QString &folder)
{
    DemoSession session;
    SvgFilm film;
    if (!session.run(QStringLiteral(DEMO)) || !session.waitForRest())
        return false;
    for (const Scene &scene : scenes) {
        const QString keys = QString::fromLatin1(scene.keys);
        if (!session.pressAll(keys))
            return false;
        film.add(session.terminal(), keys, scene.ms);
        if (&scene == &scenes[stillScene])
            film.chooseStill();
    }
    return write(folder, "session", film.svg());
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("Usage: dravikon-pictures DIR\n", stderr);
        return 2;
    }
    const QString folder = QFile::decodeName(argv[1]);
    for (const Picture &picture : pictures) {
        if (!take(picture, folder)) {
            std::fprintf(stderr, "dravikon-pictures: cannot take %s\n", picture.name);
            return 1;
        }
    }
    if (!takeFilm(folder)) {
        std::fputs("dravikon-pictures: cannot take session\n", stderr);
        return 1;
    }
    return 0;
}
