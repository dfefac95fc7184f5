// How sessions end or are stopped, and what they leave behind: exit status, terminal, tool.
#include "tests/e2e/Session.h"
#include "tests/support/Rows.h"

#include <QDir>
#include <QElapsedTimer>

#include <csignal>
#include <cstring>

Q_DECLARE_METATYPE(ExitStatus)

namespace {

/// True while a shell runs the device's tool.
bool isToolAlive(const FakeDevice &device)
{
    const QByteArray command = QByteArray("/bin/sh") + '\0' + device.paths().backendTool.toUtf8();
    const QStringList processes =
        QDir(QStringLiteral("/proc")).entryList({ QStringLiteral("[0-9]*") });
    return std::any_of(processes.begin(), processes.end(), [&command](const QString &process) {
        QFile words(QStringLiteral("/proc/%1/cmdline").arg(process));
        return words.open(QIODevice::ReadOnly) && words.readAll().startsWith(command);
    });
}

const QByteArray endlessScript = "for (;;) ;";
const QByteArray endlessGetter = "Settings = { settings: [{ get screens() { for (;;) ; } }] };";

bool waitForEndOfTool(Session &session)
{
    return session.waitFor([&session] { return !isToolAlive(session.device); });
}

/// Starts the console as a job of a shell, which runs `commands` with it as "$@".
bool startAsJob(Session &session, const QString &commands)
{
    session.setStandardError(QStringLiteral("/dev/tty"));
    return session.startBy(QStringLiteral("set -m; ") + commands)
        && session.waitForText(QStringLiteral("|Setup ver: 7|DBC ver: 1.4.2"));
}

} // namespace

class EndingTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("ASAN_OPTIONS", "handle_segv=0:handle_sigbus=0:handle_sigfpe=0:disable_coredump=1");
    }

    void endOfInput()
    {
        const int idleMs = int(PtySession::scaled(1000));
        Session session;
        QElapsedTimer timer;
        timer.start();
        QVERIFY(session.startBy(QStringLiteral("exec \"$@\" < /dev/null"), idleMs));
        QVERIFY(session.hasTitle());
        session.signal(SIGWINCH); // the wait that it interrupts still ends in time
        QCOMPARE(session.waitForExit(), endedWell);
        QVERIFY(timer.elapsed() >= idleMs);
        // One redraw for the end of input, not one after the other until the session ends.
        QVERIFY(session.bytesSinceMark().size() < 2000);
    }

    void deathBySignal_data()
    {
        const Rows<int> row("number");
        row("SIGHUP", SIGHUP); // the first
        row("SIGTERM", SIGTERM);
        row("SIGSEGV", SIGSEGV);
        row("SIGUSR1", SIGUSR1);
        row("last real-time signal", SIGRTMAX);
    }

    void deathBySignal()
    {
        QFETCH(int, number);
        Session session;
        // In an edit field the text cursor is visible, within colours.
        QVERIFY(session.start() && session.press(keysToEditField));
        session.mark();
        session.signal(number);
        QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Killed, number }));
        QVERIFY(session.isTerminalRestored());
        QCOMPARE(session.bytesSinceMark(), QByteArray("\x1b[0m\x1b[999H\x1b[K\x1b[?25h"));
        QCOMPARE(session.terminal().row(23), QString());
        QVERIFY(session.messages().endsWith(
            QStringLiteral("Dravikon was ended by signal %1.\n").arg(number)));
    }

    void stackOverflow()
    {
        Session session;
        session.device.setScript("new RegExp(Array(1e5).join('(') + Array(1e5).join(')'));");
        QVERIFY(session.run());
        const QString end = QStringLiteral("ended by signal 11.\n");
        const QString warning = QStringLiteral("nested too deeply"); // not on every processor
        QVERIFY(session.waitFor([&] {
            return session.messages().contains(end) || session.messages().contains(warning);
        }));
        QVERIFY(
            session.messages().contains(end) ? session.isTerminalRestored() : session.hasTitle());
    }

    void interrupt_data()
    {
        const Rows<QByteArrayList> row("keys");
        row("menu", { Key::redraw });
        row("lone ESC", { "\x1b" });
        row("edit field", keysToEditField);
        row("interface screen", keysToDiagnoseScreen);
    }

    void interrupt()
    {
        QFETCH(QByteArrayList, keys);
        Session session;
        QVERIFY(session.start() && session.press(keys));
        QVERIFY(session.send(Key::interrupt));
        QCOMPARE(session.waitForExit(), endedWell);
        QVERIFY(session.isTerminalRestored());
    }

    void interruptWhatHangs_data()
    {
        const Rows<QByteArray, QByteArray, QByteArray, QString> row(
            "script", "tool", "keys", "call");
        row("tool before the first frame", script, hang, "", "--version");
        row("tool of a screen", script, toolThatReadsBy(hang), Key::enter, "get|truck");
        row("script", endlessScript, goodTool, "", "--version");
        row("getter", endlessGetter, goodTool, "", "--version");
    }

    void interruptWhatHangs()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, tool);
        QFETCH(QByteArray, keys);
        QFETCH(QString, call);
        Session session;
        session.device.setScript(script);
        session.device.setTool(tool);
        QVERIFY(session.run() && session.send(keys) && session.waitForCall(call));
        QVERIFY(session.send(Key::interrupt));
        QCOMPARE(session.waitForExit(), endedWell);
        QVERIFY(session.isTerminalRestored());
        QVERIFY(waitForEndOfTool(session));
    }

    void interruptBeforeMain()
    {
        Session session;
        // Blocked by the shell, SIGINT is pending when the console starts.
        QVERIFY(session.startBy(QStringLiteral("exec env --block-signal=INT "
                                               "sh -c 'kill -INT $$; exec \"$@\"' sh \"$@\"")));
        QCOMPARE(session.waitForExit(), endedWell);
        QVERIFY(session.isTerminalRestored());
    }

    void inheritedSignals_data()
    {
        const Rows<QString, int, ExitStatus> row("option", "number", "status");
        row("blocked SIGINT", "--block-signal=INT", SIGINT, endedWell);
        row("ignored SIGINT", "--ignore-signal=INT", SIGINT, endedWell);
        row("blocked SIGTERM", "--block-signal=TERM", SIGTERM, { ExitStatus::Killed, SIGTERM });
    }

    void inheritedSignals()
    {
        QFETCH(QString, option);
        QFETCH(int, number);
        QFETCH(ExitStatus, status);
        Session session;
        QVERIFY(session.startBy(QStringLiteral("exec env %1 \"$@\"").arg(option)));
        QVERIFY(session.hasTitle());
        session.signal(number);
        QCOMPARE(session.waitForExit(), status);
    }

    void toolGetsInheritedMask()
    {
        Session session;
        // Bash passes the mask on to what it runs, other shells clear it.
        QFile tool(session.device.paths().backendTool);
        QVERIFY(tool.open(QIODevice::WriteOnly)
            && tool.write("#!/bin/bash\ngrep SigBlk /proc/self/status > \"${0%/*}/mask\"\n") > 0);
        tool.close();
        QVERIFY(session.startBy(QStringLiteral("exec env --block-signal=TERM \"$@\"")));
        QVERIFY(session.hasTitle());
        QFile mask(session.device.paths().webRoot + QStringLiteral("/mask"));
        QVERIFY(mask.open(QIODevice::ReadOnly));
        QCOMPARE(mask.readAll().trimmed().split('\t').last().toULongLong(nullptr, 16),
            1ULL << (SIGTERM - 1));
    }

    void ignoredSignals()
    {
        Session session;
        QVERIFY(session.startBy(QStringLiteral("exec env --ignore-signal=TERM "
                                               "--ignore-signal=TSTP \"$@\"")));
        QVERIFY(session.hasTitle());
        session.mark();
        session.signal(SIGTERM);
        session.signal(SIGTSTP);
        QVERIFY(session.press({ Key::redraw }) && session.waitForRest());
        QCOMPARE(session.bytesSinceMark(), QByteArray());
        QVERIFY(session.send("q"));
        QCOMPARE(session.waitForExit(), endedWell);
    }

    void stuckOutput_data()
    {
        const Rows<QByteArray, int, int, ExitStatus> row("key", "signal", "idleMs", "status");
        constexpr int none = 0;
        constexpr int usual = 180000;
        row("SIGTERM", Key::down, SIGTERM, usual, { ExitStatus::Killed, SIGTERM });
        row("SIGHUP", Key::down, SIGHUP, usual, { ExitStatus::Killed, SIGHUP });
        row("SIGUSR1", Key::down, SIGUSR1, usual, { ExitStatus::Killed, SIGUSR1 });
        row("Ctrl-C", Key::down, SIGINT, usual, endedWell);
        row("Q", "q", none, usual, endedWell);
        row("idle time", Key::down, none, int(PtySession::scaled(1500)), endedWell);
    }

    void stuckOutput()
    {
        QFETCH(QByteArray, key);
        QFETCH(int, signal);
        QFETCH(int, idleMs);
        QFETCH(ExitStatus, status);
        Session session;
        QVERIFY(session.start(idleMs));
        // The console waits for room in the terminal, also where it could poll in a loop.
        session.setInputBlocking(signal == 0);
        session.stopOutput();
        QVERIFY(session.press({ key }) && session.waitForRest());
        session.signal(signal);
        QCOMPARE(session.waitForExit(), status);
        QVERIFY((session.attributes().c_lflag & (ICANON | ECHO)) == (ICANON | ECHO));
    }

    void keyRestartsIdleTime()
    {
        const int idleMs = int(PtySession::scaled(1000));
        Session session;
        QVERIFY(session.start(idleMs));
        QElapsedTimer sinceStart;
        sinceStart.start();
        QVERIFY(session.waitFor([&] { return sinceStart.elapsed() >= idleMs / 2; }));
        QVERIFY(session.press({ Key::down }));
        QVERIFY(session.waitFor([&] { return sinceStart.elapsed() >= idleMs * 5 / 4; }));
        QCOMPARE(session.status(), (ExitStatus { ExitStatus::Running, 0 }));
        QCOMPARE(session.waitForExit(), endedWell);
    }

    void idleTimeEndsEverySession_data()
    {
        const Rows<QByteArray, QByteArray> row("script", "bytes");
        row("lone ESC", script, "\x1b");
        row("ESC [ 5", script, "\x1b[5");
        row("endless script", endlessScript, "");
    }

    void idleTimeEndsEverySession()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, bytes);
        const int idleMs = int(PtySession::scaled(700));
        Session session;
        session.device.setScript(script);
        QElapsedTimer sinceStart;
        sinceStart.start();
        QVERIFY(session.run(24, 80, idleMs));
        QVERIFY(session.waitForCall(QStringLiteral("--version")) && session.send(bytes));
        QCOMPARE(session.waitForExit(), endedWell);
        QVERIFY(sinceStart.elapsed() >= idleMs);
        QVERIFY(session.isTerminalRestored());
    }

    void toolIsStarting_data()
    {
        const Rows<int> row("number");
        row("hang-up of the line", 0);
        for (const int number : { SIGTERM, SIGHUP, SIGINT })
            row(strsignal(number), number);
    }

    void toolIsStarting()
    {
        QFETCH(int, number);
        const int attempts = qMax(8, qEnvironmentVariableIntValue("DRAVIKON_TEST_ENDINGS"));
        qint64 startNs = 0; // how long it took this time until the tool was seen
        for (int i = 0; i <= attempts; ++i) {
            Session session;
            session.device.setTool(toolThatReadsBy("sleep 100; true"));
            QVERIFY(session.start() && session.send(Key::enter));
            QElapsedTimer timer;
            timer.start();
            if (i == 0) {
                QVERIFY(session.waitFor([&] { return isToolAlive(session.device); }));
                startNs = timer.nsecsElapsed();
            }
            while (timer.nsecsElapsed() < i * startNs / attempts) { }
            if (number == 0)
                session.hangUp();
            session.signal(number);
            QVERIFY(session.waitForExit().state != ExitStatus::Running);
            QVERIFY2(waitForEndOfTool(session), qPrintable(QString::number(i)));
        }
    }

    void stopAndContinue_data()
    {
        const Rows<QByteArrayList, QString, bool> row("keys", "text", "cursorVisible");
        row("menu", { Key::redraw }, "truck", false);
        row("edit field", keysToEditField, "Enter new Value", true);
    }

    void stopAndContinue()
    {
        QFETCH(QByteArrayList, keys);
        QFETCH(QString, text);
        QFETCH(bool, cursorVisible);
        Session session;
        QVERIFY(
            startAsJob(session, QStringLiteral("\"$@\"; echo stopped; read x; fg > /dev/null")));
        QVERIFY(session.send(keys.join()) && session.waitForText(text));
        const QStringList before = session.terminal().screen();
        const tcflag_t mode = session.attributes().c_lflag;
        QVERIFY(session.send("\x1a") && session.waitForText(QStringLiteral("stopped")));
        QVERIFY(session.isTerminalRestored());
        // What the shell writes is not in the middle of the menu.
        QCOMPARE(session.terminal().row(22), QStringLiteral("stopped"));
        QVERIFY(session.send("\n"));
        QVERIFY(session.waitFor([&] { return session.terminal().screen() == before; }));
        QCOMPARE(session.attributes().c_lflag, mode);
        QCOMPARE(session.terminal().cursorVisible(), cursorVisible);
        QVERIFY(session.send(Key::escape + 'q'));
        QCOMPARE(session.waitForExit(), endedWell);
    }

    void stopWithoutShell_data()
    {
        const Rows<QString> row("command");
        row("login program", "exec \"$@\"");
        row("command of a login script", "\"$@\"; exit $?");
    }

    // The process group is orphaned: the system discards the stop, and nobody would continue it.
    void stopWithoutShell()
    {
        QFETCH(QString, command);
        Session session;
        session.setStandardError(QStringLiteral("/dev/tty"));
        QVERIFY(session.startBy(command) && session.hasTitle());
        const tcflag_t mode = session.attributes().c_lflag;
        session.mark();
        QVERIFY(session.send("\x1a"));
        QVERIFY(session.waitFor([&] { return session.bytesSinceMark().contains("Drav"); }));
        QCOMPARE(session.attributes().c_lflag, mode);
        QVERIFY(session.send("q"));
        QCOMPARE(session.waitForExit(), endedWell);
    }

    void continueAfterSigstop()
    {
        Session session;
        QVERIFY(session.start());
        session.mark();
        session.signal(SIGSTOP);
        session.signal(SIGCONT);
        QVERIFY(session.waitFor([&] { return session.bytesSinceMark().contains("Drav"); }));
    }

    void endWhileStopped_data()
    {
        const Rows<QString, QString> row("commands", "text");
        row("SIGTERM", "\"$@\"; kill %1; read x", "ended by signal 15");
        row("shell that continues nothing by itself",
            "exec dash -c 'set -m; \"$@\"; kill %1; fg' dash \"$@\"", "ended by signal 15");
        row("Ctrl-C in the background",
            "\"$@\"; kill -INT %1; kill -CONT %1; wait %1; echo status $?; read x", "status 0");
        row("Ctrl-C after a stop in the background",
            "\"$@\"; bg; wait %1; kill -INT %1; bg; wait %1; echo status $?; read x", "status 0");
    }

    void endWhileStopped()
    {
        QFETCH(QString, commands);
        Session session;
        QVERIFY(startAsJob(session, commands));
        QVERIFY(session.send("\x1a"));
        QFETCH(QString, text);
        QVERIFY(session.waitForText(text));
    }
};

QTEST_GUILESS_MAIN(EndingTest)
#include "EndingTest.moc"
