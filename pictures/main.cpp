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

/// A part of the film: keys, and how long the screen after each is shown.
struct Scene {
    const char *keys; ///< in the notation of `keysFromText`
    int keyMs; ///< after each key but the last
    int lastMs; ///< after the last key
};

constexpr Scene scenes[] = {
    { "Down*2 Return", 150, 600 }, // loading plans
    { "Down*2 Return", 150, 700 }, // loading rules
    { "Down*4 Return", 120, 800 }, // a list
    { "Down Return", 400, 700 },
    { "Down Return", 150, 500 }, // an edit field
    { "Left*2 \"9\"", 200, 900 }, // refused
    { "Backspace \"1\" Return", 400, 800 }, // accepted and written
    { "PageDown Return Down*3 Return Down", 150, 250 }, // the field interfaces
    { "Return PageDown", 1000, 1000 },
};
constexpr int stillScene = 2;

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
    film.add(session.terminal(), 800);
    for (const Scene &scene : scenes) {
        const QByteArrayList keys =
            keysFromText(QString::fromLatin1(scene.keys)).value_or(QByteArrayList());
        for (int i = 0; i < keys.size(); ++i) {
            if (!session.press(keys.at(i)) || !session.waitForRest())
                return false;
            film.add(session.terminal(), i < keys.size() - 1 ? scene.keyMs : scene.lastMs);
        }
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
