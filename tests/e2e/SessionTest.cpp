// The console on a terminal, on good days and bad ones.
#include "app/Session.h"
#include "backend/BackendTool.h"
#include "tests/e2e/Session.h"
#include "tests/support/Files.h"
#include "tests/support/Rows.h"
#include "tests/support/RunProgram.h"

#include <Version.h>

// They open and close what there is, or do nothing.
const QByteArrayList keysOfAnyMenu = { Key::enter, Key::down, Key::enter, Key::enter, Key::pageDown,
    Key::enter, Key::escape, Key::pageUp, Key::up, Key::enter };

class SessionTest : public QObject {
    Q_OBJECT

private slots:
    void commandLine()
    {
        const QString usage = "\nDravikon usage:\n==========================\n"
                              "    -h or when wrong parameter this usage\n"
                              "    --version version of this binary\n\n";
        const QString version = QString("Tavrolink-Dravikon-Version: %1\n").arg(consoleVersion);
        const Rows row = [](const QString &words, int status, const QString &output) {
            const ProgramResult result = runShell("exec " CONSOLE " " + words);
            QCOMPARE(result.status, status);
            QCOMPARE(result.output, output);
        };
        row("version", "--version", 255, version);
        row("help", "-h", 255, usage);
        row("unknown word", "--Version", 255, usage);
        row("version as the second word", "-x --version", 255, usage);
        row("full disk", "--version >/dev/full", 2, "");
    }

    // What nobody can set has the value that the manual pages name.
    void documentedDefaults()
    {
        const DevicePaths paths;
        const QByteArray patience = QByteArray::number(BackendTool::patienceMs / 1000);
        const QByteArray idleMs = QByteArray::number(SessionOptions().idleMs);
        const QByteArray manuals =
            (sourceFile("packaging/dravikon.1") + sourceFile("packaging/dravikon-preview.1"))
                .simplified();
        for (const QByteArray &sentence :
            { ".It Pa " + paths.settingsScript.toUtf8() + " the menu definition",
                ".It Pa " + paths.webRoot.toUtf8()
                    + "/locales/en/translation.json the English texts",
                ".It Pa " + paths.backendTool.toUtf8() + " the backend tool",
                "a tool that takes longer than " + patience + " seconds is killed",
                "milliseconds without a key; without it, " + idleMs + '.' })
            QVERIFY2(manuals.contains(sentence), sentence.constData());
    }

    void badDays()
    {
        const Rows row = [](const QByteArray &script, const QByteArray &tool,
                             const QByteArray &translations, const QString &message) {
            Session session;
            session.device.setScript(script);
            session.device.setTool(tool);
            session.device.setTranslations(translations);
            QVERIFY(session.start() && session.press(keysOfAnyMenu));
            QCOMPARE(session.terminal().row(0), "Quenstadel");
            QVERIFY(session.messages().contains(message));
            QCOMPARE(session.endBy("q"), endedWell);
        };
        row("thrown error", script + "\nthrow new Error('boo')", goodTool, "[]",
            R"(isError()) "lineNumber" "8")");
        row("control characters", script, R"(printf 'x\033[2J\377\000[')",
            "{\"truck\":", "parsing failed. Input was:  \"x");
        row("flood of errors", script, "head -c 1000000 /dev/zero >&2", "",
            "Loading translation map for \"en\" failed");
    }

    void goneReader()
    {
        Session session;
        session.device.setScript("throw 5");
        // Messages go to a pipe that nobody reads any more.
        QVERIFY(session.startBy("mkfifo $2/m; : < $2/m & exec 2> $2/m; wait; exec \"$@\""));
        QVERIFY(session.hasTitle());
        QCOMPARE(session.endBy("q"), endedWell);
    }

    // It counts as one of 24 rows and 80 columns.
    void terminalWithoutSize()
    {
        const Rows row = [](int rows, int columns) {
            Session session;
            QVERIFY(
                session.start() && session.press(keysToDiagnoseScreen) && session.waitForRest());
            const QStringList before = session.terminal().screen();
            session.mark();
            session.setSize(rows, columns);
            QVERIFY(session.waitForRedraw() && session.waitForRest());
            QCOMPARE(session.terminal().screen(), before);
        };
        row("none", 0, 0);
        row("no rows", 0, 132);
        row("no columns", 50, 0);
    }

    void resizeWhileToolRuns()
    {
        Session session;
        session.device.setTool(toolThatReadsBy(
            "until [ -e \"${0%/*}/go\" ]; do sleep 0.01; done; echo '[\"Emma\",true,[]]'"));
        QVERIFY(session.start() && session.waitForRest());
        session.device.takeCalls();
        QVERIFY(session.send(Key::enter) && session.waitForCall("get|truck"));
        session.signal(SIGWINCH);
        writeFile(session.device.paths().webRoot + "/go", "");
        QVERIFY(session.waitForRest());
        // The key is finished before the redraw, which begins with a question for the version.
        QCOMPARE(session.device.takeCalls(),
            QStringList({ "get_menu_electronic_seal_status", "--version",
                "get_menu_electronic_seal_status", "get|truck" }));
    }

    void keysTogether()
    {
        const Rows row = [](const QByteArray &tool, const QByteArray &keys, const QString &call) {
            Session session;
            session.device.setTool(tool);
            QVERIFY(session.start() && session.send(keys) && session.waitForCall(call));
        };
        const QByteArray edit = keysToEditField.join();
        row("200 keys", goodTool, (Key::down + Key::up).repeated(100) + "\n", "get|truck");
        row("while the tool runs", "sleep 0.1; " + goodTool, edit + "Eva\n",
            R"(set|truck|["EmmaEva",true])");
        row("paste", goodTool, edit + "5~O\n", R"(set|truck|["Emma5~O",true])");
    }

    // Each key acts, but few of their frames are written.
    void burst()
    {
        Session session;
        QVERIFY(session.start() && session.waitForRest());
        session.mark();
        QVERIFY(session.press({ Key::down }) && session.waitForRest());
        const int frame = session.bytesSinceMark().size();
        session.mark();
        QVERIFY(session.send((Key::up + Key::down).repeated(20)) && session.waitForRest());
        QVERIFY2(
            frame > 0 && session.bytesSinceMark().size() < 10 * frame, session.bytesSinceMark());
    }

    void keyInPieces()
    {
        Session session;
        QVERIFY(session.start());
        // As a program before may have left it.
        session.setInputBlocking(false);
        for (const QByteArray &key : { Key::down, Key::pageUp, Key::escape }) {
            for (int split = 1; split < key.size(); ++split) {
                QVERIFY(session.press({ key.left(split) }));
                // The console waits for the rest without taking processor time, and redraws
                // meanwhile.
                QVERIFY(session.isAtRest());
                session.mark();
                session.resize(24, 70 + split);
                QVERIFY(session.waitForRedraw() && session.waitForRest());
                QVERIFY(session.press({ key.mid(split) }));
            }
        }
        QVERIFY(session.press({ Key::enter }) && session.waitForCall("get|truck"));
        QVERIFY(session.press({ "\x1b" }));
        QCOMPARE(session.endBy(Key::interrupt), endedWell);
        QVERIFY(session.isTerminalRestored());
    }

    void steadyMemory()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the sanitizer keeps what was freed");
#endif
        Session session;
        QVERIFY(session.start());
        const auto residentKib = [&session] {
            return readFile(QString("/proc/%1/statm").arg(session.pid())).split(' ')[1].toInt() * 4;
        };
        // Open the group, drop an edit and confirm one, close it.
        const QByteArrayList cycle = keysToEditField
            + QByteArrayList { "x", Key::escape, Key::enter, Key::enter, Key::up, Key::enter,
                  Key::redraw };
        QByteArrayList keys;
        for (int i = 0; i < 50; ++i)
            keys += cycle;
        // The first stretch fills caches and the engine's heap, the second one finds them filled.
        QVERIFY(session.press(keys));
        const int before = residentKib();
        QVERIFY(before > 0 && session.press(keys));
        const int growth = residentKib() - before;
        QVERIFY2(growth < 64, qPrintable(QString::number(growth)));
    }
};

QTEST_GUILESS_MAIN(SessionTest)
#include "SessionTest.moc"
