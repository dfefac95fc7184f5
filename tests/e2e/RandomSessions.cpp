// Plays random keys, sizes and faults of the tool against the console and checks its screen after
// each: random-sessions SESSIONS KEYS SEED.
#include "terminal/Keys.h"
#include "tests/support/DeviceSession.h"

#include <QCoreApplication>
#include <QDir>
#include <QRandomGenerator>
#include <QSize>

#include <csignal>
#include <cstdio>

namespace {

const QByteArray tool = R"sh(
case "$(cat "${0%/*}/fault" 2> /dev/null)" in
silent) exit 1 ;;
garbage) printf '[1, {"a\033[2J\377'; exit ;;
crash) kill -SEGV $$ ;;
slow) sleep 0.02 ;;
hostile) printf '["\\u001b[5n\\u0007","\\u009b2J",-7,1e300,[[]],{"a":null},"%01000d"]' 7; exit ;;
esac
case "$*" in
--version) echo 1.4.2/build7 ;;
*truck_setup) echo '[3,"a","b","c",1,2,3,4,5,6,7,8]' ;;
*can_fas_wm) echo '[2,2,2,2,2,2,2,2]' ;;
*seal_status) echo '["i18n_wm_false"]' ;;
*diagnose_spd*|*diagnose_io*|*diagnose_wetleg*) echo '[["1.0","2.0",[1,2,3,4,5],[6,7,8]],"busy",[]]' ;;
*diagnose_as*) echo '["1.0","2.0",[["s1","p1"],["s2","p2"]]]' ;;
*diagnose_tag*) echo '[1,2,3,4,5]' ;;
*1\ \[*) echo '[false]' ;;
*\[*) echo '[true]' ;;
*) echo '[1,"two",3.5,true,null,"i18n_yes","x",8,9,10,"eleven",12,13,14,15,16,17,18,19,20]' ;;
esac)sh";

const char *const faults[] = { "none", "none", "silent", "garbage", "crash", "slow", "hostile" };

const QByteArrayList keys = { Key::enter, Key::enter, Key::enter, Key::up, Key::down, Key::down,
    Key::down, Key::left, Key::right, Key::pageUp, Key::pageDown, Key::escape, Key::backspace,
    Key::redraw };

// Sizes that chance hardly meets.
const QSize rareSizes[] = { { 1, 1 }, { 2, 2 }, { 10, 3 }, { 500, 200 } };

class Player {
public:
    Player(const QString &program, quint32 seed)
        : program(program)
        , random(seed)
        , nextRareSize(seed)
    {
    }

    /// False, with a message, as soon as the console does not do as it should.
    bool play(int steps)
    {
        QFile script(QStringLiteral(SOURCES "/demo/web/scripts/settings.js"));
        if (!script.open(QIODevice::ReadOnly))
            return fails("cannot read the demo's script");
        session.device.setScript(script.readAll());
        session.device.setTool(tool);
        session.device.setTranslations("{}");
        if (!session.run(program) || !session.hasTitle())
            return fails("does not start");
        const int ownDescriptors = descriptors();
        for (int step = 0; step < steps; ++step) {
            switch (random.bounded(40)) {
            case 0:
                setFault(faults[random.bounded(int(std::size(faults)))]);
                session.signal(SIGWINCH);
                break;
            case 1:
                resize(
                    { 1 + random.bounded(random.bounded(2) ? 200 : 20), 1 + random.bounded(60) });
                break;
            case 2:
                resize(rareSizes[nextRareSize++ % std::size(rareSizes)]);
                break;
            default:
                if (!session.press({ randomKey() }))
                    return fails("does not take a key");
            }
            if (!settle() || !isSound() || (step % 25 == 0 && !isFaulty && !equalsFreshDraw()))
                return false;
            if (step % 25 == 0 && descriptors() != ownDescriptors)
                return fails("keeps a descriptor");
        }
        session.signal(SIGINT);
        return session.waitForExit() == ExitStatus { ExitStatus::Exited, 0 }
        || fails("does not end well");
    }

private:
    QByteArray randomKey()
    {
        // Bytes of the line discipline, of quitting and the one that begins a sequence stay out.
        static const QByteArray excluded("\x03\x11\x13\x1a\x1b\x1cqQ");
        if (random.bounded(4) != 0)
            return keys.at(random.bounded(keys.size()));
        const char byte = char(random.bounded(256));
        return excluded.contains(byte) ? QByteArray("x") : QByteArray(1, byte);
    }

    void resize(const QSize &newSize)
    {
        size = newSize;
        session.resize(size.height(), size.width());
    }

    void setFault(const QByteArray &fault)
    {
        QFile file(session.device.paths().webRoot + QStringLiteral("/fault"));
        if (file.open(QIODevice::WriteOnly))
            file.write(fault);
        isFaulty = fault != "none";
    }

    bool settle() { return session.waitForRest() || fails("hangs"); }

    bool isSound()
    {
        const TerminalEmulator &terminal = session.terminal();
        const QString header =
            QStringLiteral("Quenstadel").left(size.width() > 10 ? 10 : size.width() - 1);
        const QString title = QStringLiteral("Dravikon ver").left(size.width() - 1).trimmed();
        if (!session.waitFor([&] {
                return (size.height() == 1 || terminal.row(0) == header)
                    && terminal.row(size.height() - 1).startsWith(title);
            }))
            return fails("loses its bars");
        return terminal.answerBack().isEmpty() || fails("makes the terminal answer");
    }

    bool equalsFreshDraw()
    {
        const QStringList shown = screen();
        session.signal(SIGWINCH);
        return (settle() && session.waitFor([&] { return screen() == shown; }))
            || fails("shows something else than a fresh draw:\n"
                + shown.join(QLatin1Char('\n')).toLocal8Bit());
    }

    int descriptors() const
    {
        return QDir(QStringLiteral("/proc/%1/fd").arg(session.pid()))
            .entryList(QDir::Files | QDir::System)
            .size();
    }

    QStringList screen() const
    {
        QStringList lines = session.terminal().screen();
        for (int row = 0; row < size.height(); ++row)
            lines += session.terminal().backgrounds(row);
        return lines;
    }

    bool fails(const QByteArray &what)
    {
        std::printf("the console %s\n%s\n%s\n", what.constData(),
            qPrintable(session.terminal().screen().join(QLatin1Char('\n'))),
            qPrintable(session.messages().right(4000)));
        return false;
    }

    const QString program;
    QRandomGenerator random;
    uint nextRareSize;
    DeviceSession session;
    QSize size { 80, 24 };
    bool isFaulty = false;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 4)
        return 2;
    const int sessions = QByteArray(argv[1]).toInt();
    const int steps = QByteArray(argv[2]).toInt();
    const quint32 seed = QByteArray(argv[3]).toUInt();
    for (int i = 0; i < sessions; ++i) {
        if (!Player(QStringLiteral(TEST_SESSION), seed + quint32(i)).play(steps)) {
            std::printf("seed %u\n", seed + quint32(i));
            return 1;
        }
    }
    std::printf("%d sessions of %d steps: sound\n", sessions, steps);
    return 0;
}
