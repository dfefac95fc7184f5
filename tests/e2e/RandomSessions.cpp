// Plays random keys, sizes and faults of the tool against the console and checks its screen after
// each. DRAVIKON_TEST_SESSIONS, _KEYS and _SEED in the environment ask for others than the usual.
#include "terminal/ScreenNotation.h"
#include "tests/e2e/Session.h"
#include "tests/support/Chance.h"
#include "tests/support/Files.h"

#include <QDir>

#include <csignal>

namespace {

const QByteArray tool = R"(
read fault < "${0%/tool}/fault"
case $fault in
silent) exit 1 ;;
garbage) printf '[1, {"a"\033[2J\377'; exit ;;
crash) kill -SEGV $$ ;;
slow) sleep 0.02 ;;
hostile) printf '["\\u001b[5n\\u0007","\\u009b2J",-7,1e300,[[]],{"a":null},"%01000d"]' 7; exit ;;
esac
case "$*" in
--version) echo 1.4.2/build7 ;;
*1\ \[*) echo '[false]' ;;
*\[*) echo '[true]' ;;
*) echo '[1,"two",3.5,true,null,"i18n_yes","x",8,9,10,"eleven",12,13,14,15,16,17,18,19,20]' ;;
esac)";

const char *const faults[] = { "none", "none", "silent", "garbage", "crash", "slow", "hostile" };

const QByteArrayList keys = { Key::enter, Key::enter, Key::enter, Key::up, Key::down, Key::down,
    Key::down, Key::left, Key::right, Key::pageUp, Key::pageDown, Key::escape, Key::backspace,
    Key::redraw };

// Sizes that chance hardly meets.
const QSize rareSizes[] = { { 1, 1 }, { 2, 2 }, { 10, 3 }, { 500, 200 } };

QByteArray randomKey(QRandomGenerator &random)
{
    // Bytes of the line discipline, of quitting and the one that begins a sequence stay out.
    static const QByteArray excluded("\x03\x11\x13\x1a\x1b\x1cqQ");
    if (random.bounded(4) != 0)
        return oneOf(keys, random);
    const char byte = char(random.bounded(256));
    return excluded.contains(byte) ? QByteArray("x") : QByteArray(1, byte);
}

} // namespace

class RandomSessions : public QObject {
    Q_OBJECT

    static bool hasBars(Session &session, const QSize &size)
    {
        const QString header = QString("Quenstadel").left(qMin(10, qMax(size.width() - 1, 0)));
        const QString title = QString("Dravikon ver").left(size.width() - 1).trimmed();
        return session.waitFor([&] {
            return (size.height() == 1 || session.terminal().row(0) == header)
                && session.terminal().row(size.height() - 1).startsWith(title);
        });
    }

private slots:
    void staySound_data() { addSeeds(setting("DRAVIKON_TEST_SESSIONS", 4)); }

    void staySound()
    {
        QFETCH(int, seed);
        QRandomGenerator random { quint32(seed) };
        Session session;
        session.device.setScript(sourceFile("demo/web/scripts/settings.js"));
        session.device.setTool(tool);
        QSize size { 80, 24 };
        QVERIFY(session.run() && session.hasTitle());
        const auto descriptors = [&session] {
            const QDir folder(QString("/proc/%1/fd").arg(session.pid()));
            return folder.entryList(QDir::Files | QDir::System).size();
        };
        const int ownDescriptors = descriptors();
        const int steps = setting("DRAVIKON_TEST_KEYS", 150);
        QByteArray fault = "none";
        for (int step = 0; step < steps; ++step) {
            switch (random.bounded(40)) {
            case 0:
                fault = oneOf(faults, random);
                writeFile(session.device.paths().webRoot + "/fault", fault);
                session.signal(SIGWINCH);
                break;
            case 1:
                size = { 1 + random.bounded(random.bounded(2) ? 200 : 20), 1 + random.bounded(60) };
                session.resize(size.height(), size.width());
                break;
            case 2:
                size = oneOf(rareSizes, random);
                session.resize(size.height(), size.width());
                break;
            default:
                QVERIFY(session.press({ randomKey(random) }));
            }
            QVERIFY(session.waitForRest());
            const QStringList shown = notationOfScreen(session.terminal());
            QVERIFY2(hasBars(session, size), qPrintable(shown.join('\n') + session.messages()));
            QVERIFY(session.terminal().answerBack().isEmpty());
            if (step % 25 != 0)
                continue;
            QCOMPARE(descriptors(), ownDescriptors);
            // What is shown is what a fresh draw shows.
            session.signal(SIGWINCH);
            QVERIFY(session.waitForRest());
            QVERIFY(fault != "none"
                || session.waitFor([&] { return notationOfScreen(session.terminal()) == shown; }));
        }
        session.signal(SIGINT);
        QCOMPARE(session.waitForExit(), endedWell);
    }
};

QTEST_GUILESS_MAIN(RandomSessions)
#include "RandomSessions.moc"
