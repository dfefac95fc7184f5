// The console on a terminal, from its start to each of its ends, on good days and bad ones.
#include "terminal/Keys.h"
#include "tests/support/DeviceSession.h"
#include "tests/support/RunProgram.h"

#include <QElapsedTimer>
#include <QtTest>

#include <Version.h>

#include <csignal>

namespace {

const QString console = QStringLiteral(TEST_SESSION);
const ExitStatus endedWell = { ExitStatus::Exited, 0 };

const QByteArray screens =
    R"([{css:'root', screens:[{css:'truck', remote:1}, {css:'status', remote:1},
    {css:'many', remote:1}]},
{css:'truck', 'ajax-read':'get truck', 'ajax-write':'set truck',
    screens:[{i18n:'name', inputType:'edit', validation:'C8'}, {i18n:'on', inputType:'boolean'}]},
{css:'status', screens:[{css:'btnServiceDiagnoseAsInterfaces', remote:1}]},
{css:'btnServiceDiagnoseAsInterfaces', type:'status'},
{css:'many', screens:[{i18n:'a'},{i18n:'b'},{i18n:'c'},{i18n:'d'}]}])";
const QByteArray script = "var Settings = { setupStructureVersion: 7, settings: " + screens + "};";

const QByteArray hang = "echo $$ > \"${0%/*}/pid\"; trap '' INT TERM; exec sleep 100";

QByteArray toolThatReadsBy(const QByteArray &command)
{
    return "case $* in --version) echo 1.4.2/build7;; get*seal*) echo '[\"x\"]';; get*) " + command
        + ";; set*) echo '[true]';; esac";
}

const QByteArray goodTool = toolThatReadsBy("echo '[\"Emma\",true,[]]'");

const QByteArrayList keysToEditField = { Key::enter, Key::down, Key::enter };
const QByteArrayList keysToDiagnoseScreen = { Key::down, Key::enter, Key::down, Key::enter };

/// A session on a device in good order.
class Session : public DeviceSession {
public:
    Session()
    {
        device.setScript(script);
        device.setTool(goodTool);
        device.setTranslations("{}");
    }

    bool start() { return run(console) && hasTitle(); }

    bool isTerminalRestored() const
    {
        return (attributes().c_lflag & (ICANON | ECHO)) == (ICANON | ECHO)
            && terminal().cursorVisible();
    }
};

} // namespace

class SessionTest : public QObject {
    Q_OBJECT

private slots:
    void commandLine();
    void badDays();
    void endOfSession();
    void deathBySignal();
    void interrupt_data();
    void interrupt();
    void endOfInput();
    void goneReader();
    void stopAndContinue();
    void resizeStorm();
    void keysTogether_data();
    void keysTogether();
    void keyInPieces_data();
    void keyInPieces();
    void steadyMemory();
};

void SessionTest::commandLine()
{
    const QByteArray usage = "\nDravikon usage:\n==========================\n"
                             "    -h or when wrong parameter this usage\n"
                             "    --version version of this binary\n\n";
    const QByteArray version =
        "Tavrolink-Dravikon-Version: " + QByteArray(consoleVersion.data()) + '\n';
    const QVector<QPair<QByteArrayList, QByteArray>> rows = { { { "--version" }, version },
        { { "--version", "" }, version }, { { "-h" }, usage }, { { "--Version" }, usage },
        { { "-x", "--version" }, usage } };
    for (const auto &row : rows) {
        QStringList arguments;
        for (const QByteArray &argument : row.first)
            arguments += QString::fromLatin1(argument);
        const ProgramResult result = runProgram(QStringLiteral(CONSOLE), arguments);
        QCOMPARE(result.exitStatus, 255);
        QCOMPARE(result.output, row.second);
    }
}

void SessionTest::badDays()
{
    struct Day {
        QByteArray script;
        QByteArray tool;
        QByteArray translations;
        const char *message;
    };
    const Day days[] = {
        { "", "", "", "" }, // no file at all
        { script.left(200), goodTool, "{}", R"(scriptValues.isError()) "message" "Parse error")" },
        { script + "\nthrow new Error('boo')", goodTool, "[]", R"(isError()) "lineNumber" "8")" },
        { script + "\nthrow 5", goodTool, "", "line 8" },
        { "var Settings = { settings: 5 };", goodTool, "{}", "no array of screens" },
        { script, R"(printf 'x\033[2J\377\000[')",
            "{\"truck\":", "parsing failed. Input was:  \"x" },
        { script, "echo true", "{\"truck\":[]}", "" },
        { script, "kill -SEGV $$", "\"\"", "parsing failed. Input was:  \"\"" },
        { script, "head -c 1000000 /dev/zero >&2", "",
            "Loading translation map for \"en\" failed" },
    };
    for (const Day &day : days) {
        Session session;
        session.device.setScript(day.script);
        session.device.setTool(day.tool);
        session.device.setTranslations(day.translations);
        if (day.tool.isEmpty()) {
            QVERIFY(QFile::remove(session.device.paths().backendTool));
            QVERIFY(QFile::remove(session.device.paths().settingsScript));
        }
        QVERIFY(session.start());
        QVERIFY(session.press({ Key::enter, Key::down, Key::enter, Key::enter, Key::pageDown,
            Key::enter, Key::escape, Key::pageUp, Key::up, Key::enter }));
        QCOMPARE(session.terminal().row(0), QStringLiteral("Quenstadel"));
        QVERIFY2(session.messages().contains(QLatin1String(day.message)), day.message);
        QVERIFY(session.press({ "q" }));
        QCOMPARE(session.waitForExit(), endedWell);
    }
}

void SessionTest::endOfSession()
{
    for (const QByteArray &key :
        { QByteArray("q"), QByteArray("Q"), Key::interrupt, QByteArray() }) {
        Session session;
        QVERIFY(session.run(console, 24, 80, key.isEmpty() ? 300 : 180000) && session.hasTitle());
        QVERIFY(!(session.attributes().c_lflag & (ICANON | ECHO))
            && session.attributes().c_lflag & ISIG);
        QVERIFY(!session.terminal().cursorVisible());
        QVERIFY(session.send(key));
        QCOMPARE(session.waitForExit(), endedWell);
        QVERIFY(session.isTerminalRestored());
        QCOMPARE(session.terminal().screen().join(QString()), QString());
        QVERIFY(!session.terminal().backgrounds(0).contains(QLatin1Char('r')));
    }
}

void SessionTest::deathBySignal()
{
    qputenv("ASAN_OPTIONS", "handle_segv=0:handle_sigbus=0:handle_sigfpe=0:disable_coredump=1");
    for (const int number :
        { SIGTERM, SIGHUP, SIGQUIT, SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL }) {
        Session session;
        // In an edit field the text cursor stands in colours.
        QVERIFY(session.start() && session.press(keysToEditField));
        session.mark();
        session.signal(number);
        QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Killed, number }));
        QVERIFY(session.isTerminalRestored());
        QCOMPARE(session.bytesSinceMark(), QByteArray("\x1b[?25h\x1b[0m"));
    }
    qunsetenv("ASAN_OPTIONS");
}

void SessionTest::interrupt_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QByteArray>("tool");
    QTest::addColumn<QByteArrayList>("keys");
    const QByteArrayList none;
    QTest::newRow("before the first frame") << script << hang << none;
    QTest::newRow("opening") << script << toolThatReadsBy(hang) << QByteArrayList { Key::enter };
    QTest::newRow("lone ESC") << script << goodTool << QByteArrayList { "\x1b" };
    QTest::newRow("half a sequence") << script << goodTool << QByteArrayList { "\x1b[5" };
    QTest::newRow("edit field") << script << goodTool << keysToEditField;
    QTest::newRow("diagnose screen") << script << goodTool << keysToDiagnoseScreen;
    QTest::newRow("endless script") << QByteArray("for (;;) ;") << goodTool << none;
    QTest::newRow("endless getter")
        << QByteArray("var Settings = { settings: [{ get screens() { for (;;) ; } }] };")
        << goodTool << none;
}

void SessionTest::interrupt()
{
    QFETCH(QByteArray, script);
    QFETCH(QByteArray, tool);
    QFETCH(QByteArrayList, keys);
    Session session;
    session.device.setScript(script);
    session.device.setTool(tool);
    QVERIFY(session.run(console));
    if (keys.isEmpty())
        QVERIFY(session.waitFor([&] { return !session.device.takeCalls().isEmpty(); }));
    else
        QVERIFY(session.hasTitle() && session.press(keys));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(session.send(Key::interrupt));
    QCOMPARE(session.waitForExit(), endedWell);
    // A script can only be cut off, a second later.
    QVERIFY(timer.elapsed() < session.scaled(script.contains("for (;;)") ? 3000 : 1000));
    QVERIFY(session.isTerminalRestored());
    QFile pid(session.device.paths().webRoot + QStringLiteral("/pid"));
    QVERIFY(!pid.open(QIODevice::ReadOnly) || kill(pid.readAll().trimmed().toInt(), 0) != 0);
}

void SessionTest::endOfInput()
{
    const Session session;
    QElapsedTimer timer;
    timer.start();
    const ProgramResult result = runProgram(console, session.arguments(500));
    QCOMPARE(result.exitStatus, 0);
    QVERIFY(timer.elapsed() >= 500);
    // One redraw for the end of input, not one after the other until the session ends.
    QVERIFY(!result.output.isEmpty() && result.output.size() < 2000);
}

void SessionTest::goneReader()
{
    Session session;
    session.device.setScript("throw 5");
    PtySession shell;
    // Messages go to a pipe that nobody reads any more.
    const QString commands =
        QStringLiteral("mkfifo $0/m; : < $0/m & exec 2> $0/m; wait; exec \"$@\"");
    QVERIFY(shell.start(QStringLiteral("/bin/bash"),
        QStringList { QStringLiteral("-c"), commands, session.device.paths().webRoot, console }
            + session.arguments(),
        24, 80));
    QVERIFY(shell.waitForText(QStringLiteral("Dravikon ver")) && shell.send("q"));
    QCOMPARE(shell.waitForExit(), endedWell);
}

void SessionTest::stopAndContinue()
{
    const Session session;
    PtySession shell;
    shell.setStandardError(QStringLiteral("/dev/tty"));
    // A shell with job control, in which the console is stopped and taken to the front again.
    const QString commands = QStringLiteral("\"$@\"; echo stopped; read x; fg > /dev/null");
    QVERIFY(shell.start(QStringLiteral("/bin/bash"),
        QStringList { QStringLiteral("-mc"), commands, QStringLiteral("bash"), console }
            + session.arguments(),
        24, 80));
    QVERIFY(shell.waitForText(QStringLiteral("|Setup ver: 7|DBC ver: 1.4.2")));
    const QStringList before = shell.terminal().screen();
    QVERIFY(shell.send("\x1a") && shell.waitForText(QStringLiteral("stopped")));
    QCOMPARE(int(shell.attributes().c_lflag & (ICANON | ECHO)), ICANON | ECHO);
    QVERIFY(shell.terminal().cursorVisible());
    QVERIFY(shell.send("\n"));
    QVERIFY(shell.waitFor([&] { return shell.terminal().screen() == before; }));
    QVERIFY(!(shell.attributes().c_lflag & (ICANON | ECHO)));
    QVERIFY(shell.send("q"));
    QCOMPARE(shell.waitForExit(), endedWell);
}

void SessionTest::resizeStorm()
{
    Session session;
    session.device.setTool("sleep 0.01; " + goodTool);
    QVERIFY(session.start() && session.press(keysToEditField));
    QVERIFY(session.waitForText(QStringLiteral("Enter new Value")));
    const QStringList before = session.terminal().screen();
    for (int i = 0; i < 1000; ++i) {
        session.resize(5 + i % 40, 20 + i % 100);
        QVERIFY(i % 20 != 0 || session.send(Key::redraw));
        session.mark();
    }
    session.resize(24, 80);
    QVERIFY(session.waitFor([&] { return session.terminal().screen() == before; }));
}

void SessionTest::keysTogether_data()
{
    QTest::addColumn<QByteArray>("tool");
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QString>("call"); // none: the session ends
    const QByteArray edit = keysToEditField.join();
    QTest::newRow("there and back") << goodTool << Key::down + Key::down + Key::up + Key::up + "\n"
                                    << QStringLiteral("get|truck");
    QTest::newRow("200 keys") << goodTool << (Key::down + Key::up).repeated(100) + "\n"
                              << QStringLiteral("get|truck");
    QTest::newRow("while the tool runs") << "sleep 0.1; " + goodTool << edit + "Eva\n"
                                         << QStringLiteral("set|truck|[\"EmmaEva\",true]");
    QTest::newRow("paste") << goodTool << edit + "5~O\n"
                           << QStringLiteral("set|truck|[\"Emma5~O\",true]");
    QTest::newRow("with Q") << goodTool << Key::down + 'Q' + edit << QString();
    QTest::newRow("with Ctrl-C") << goodTool << edit + Key::interrupt + edit << QString();
}

void SessionTest::keysTogether()
{
    QFETCH(QByteArray, tool);
    QFETCH(QByteArray, keys);
    QFETCH(QString, call);
    Session session;
    session.device.setTool(tool);
    QVERIFY(session.start() && session.send(keys));
    QStringList calls;
    if (call.isEmpty())
        QCOMPARE(session.waitForExit(), endedWell);
    else
        QVERIFY(
            session.waitFor([&] { return (calls += session.device.takeCalls()).contains(call); }));
}

void SessionTest::keyInPieces_data()
{
    QTest::addColumn<bool>("blocking");
    QTest::newRow("blocking input") << true;
    QTest::newRow("non-blocking input") << false;
}

void SessionTest::keyInPieces()
{
    QFETCH(bool, blocking);
    Session session;
    QVERIFY(session.start());
    session.setInputBlocking(blocking);
    for (const QByteArray &key : { Key::down, Key::pageUp, Key::escape }) {
        for (int split = 1; split < key.size(); ++split) {
            QVERIFY(session.press({ key.left(split) }));
            // The console waits for the rest without taking processor time, and redraws meanwhile.
            QVERIFY(session.isAtRest());
            session.resize(30, 70 + split);
            QVERIFY(session.waitFor([&] {
                return session.terminal().screen().value(29).contains(QLatin1String("Drav"));
            }));
            session.resize(24, 80);
            QVERIFY(session.waitForRest() && session.press({ key.mid(split) }));
        }
    }
    QVERIFY(session.press({ Key::enter }) && session.waitForRest());
    QVERIFY(session.device.takeCalls().contains(QStringLiteral("get|truck")));
}

void SessionTest::steadyMemory()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("the sanitizer keeps what was freed");
#endif
    const int cycles = qEnvironmentVariableIsSet("DRAVIKON_TEST_CYCLES")
        ? qEnvironmentVariableIntValue("DRAVIKON_TEST_CYCLES")
        : 100;
    Session session;
    QVERIFY(session.start());
    const auto residentKib = [&session] {
        QFile status(QStringLiteral("/proc/%1/statm").arg(session.pid()));
        return status.open(QIODevice::ReadOnly) ? status.readAll().split(' ').value(1).toInt() * 4
                                                : 0;
    };
    // Open the group, drop an edit and confirm one, close it.
    const auto play = [&session](int count) {
        for (int i = 0; i < count; ++i) {
            if (!session.press(keysToEditField
                    + QByteArrayList { "x", Key::escape, Key::enter, Key::enter, Key::up,
                        Key::enter, Key::redraw }))
                return false;
        }
        return true;
    };
    // The first stretch fills caches and the engine's heap, the second one finds them filled.
    QVERIFY(play(cycles));
    const int before = residentKib();
    QVERIFY(before > 0 && play(cycles));
    const int growth = residentKib() - before;
    QVERIFY2(growth < 64, qPrintable(QString::number(growth)));
}

QTEST_GUILESS_MAIN(SessionTest)
#include "SessionTest.moc"
