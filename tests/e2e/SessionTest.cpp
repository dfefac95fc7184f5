// The console on a terminal, on good days and bad ones.
#include "tests/e2e/Session.h"
#include "tests/support/RunProgram.h"

#include <QtTest>

#include <Version.h>

class SessionTest : public QObject {
    Q_OBJECT

private slots:
    void commandLine();
    void badDays();
    void goneReader();
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
