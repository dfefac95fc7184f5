// How sessions end or are stopped, and what they leave behind: exit status, terminal, tool.
#include "tests/e2e/Session.h"
#include "tests/support/Files.h"
#include "tests/support/Rows.h"
#include "tests/support/RunProgram.h"

#include <QDir>

namespace {

/// True while a shell runs the device's tool.
bool isToolAlive(const FakeDevice &device)
{
    const QByteArray command = QByteArray("/bin/sh") + '\0' + device.paths().backendTool.toUtf8();
    const QStringList processes = QDir("/proc").entryList({ "[0-9]*" });
    return std::any_of(processes.begin(), processes.end(), [&command](const QString &process) {
        QFile words(QString("/proc/%1/cmdline").arg(process));
        return words.open(QIODevice::ReadOnly) && words.readAll().startsWith(command);
    });
}

const QByteArray endlessScript = "for (;;) ;";

bool waitForEndOfTool(Session &session)
{
    return session.waitFor([&session] { return !isToolAlive(session.device); });
}

/// Starts the console as a job of a shell, which runs `commands` with it as "$@".
bool startAsJob(Session &session, const QString &commands)
{
    session.setStandardError("/dev/tty");
    return session.startBy("set -m; " + commands)
        && session.waitForText("|Setup ver: 7|DBC ver: 1.4.2");
}

} // namespace

class EndingTest : public QObject {
    Q_OBJECT

private slots:
    void endOfInput()
    {
        const int idleMs = int(PtySession::scaled(700));
        Session session;
        QVERIFY(session.startBy("exec \"$@\" < /dev/null", idleMs) && session.hasTitle());
        session.signal(SIGWINCH); // the wait that it interrupts still ends in time
        QCOMPARE(session.waitForExit(), endedWell);
        QVERIFY(session.sinceStart.elapsed() >= idleMs);
        // One redraw for the end of input, not one after the other until the session ends.
        QVERIFY(session.bytesSinceMark().size() < 2000);
    }

    void deathBySignal()
    {
        const Rows row = [](int number) {
            Session session;
            // In an edit field the text cursor is visible, within colours.
            QVERIFY(session.start() && session.press(keysToEditField));
            session.mark();
            session.signal(number);
            QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Killed, number }));
            QVERIFY(session.isTerminalRestored());
            QCOMPARE(session.bytesSinceMark(), QByteArray("\x1b[0m\x1b[999H\x1b[K\x1b[?25h"));
            QCOMPARE(session.terminal().row(23), QString());
            QVERIFY(session.messages().contains( // an emulator adds that it was a fault
                QString("Dravikon was ended by signal %1.\n").arg(number)));
        };
        row("the first", SIGHUP);
        row("fault", SIGSEGV);
        row("real-time signal", SIGRTMAX - 5); // an emulator keeps the last ones
    }

    void stackOverflow()
    {
        Session session;
        session.device.setScript("new RegExp(Array(1e5).join('(') + Array(1e5).join(')'));");
        QVERIFY(session.run());
        const QRegularExpression outcome("ended by signal 11|nested too deeply");
        QVERIFY(session.waitFor([&] { return session.messages().contains(outcome); }));
        const bool hasEnded = session.messages().contains("ended"); // not on every processor
        QVERIFY(hasEnded ? session.isTerminalRestored() : session.hasTitle());
    }

    void interruptWhatHangs()
    {
        const Rows row = [](const QByteArray &script, const QByteArray &tool,
                             const QByteArray &keys, const QString &call) {
            Session session;
            session.device.setScript(script);
            session.device.setTool(tool);
            QVERIFY(session.run() && session.send(keys) && session.waitForCall(call));
            QCOMPARE(session.endBy(Key::interrupt), endedWell);
            QVERIFY(session.isTerminalRestored() && waitForEndOfTool(session));
        };
        const QByteArray endlessGetter =
            "Settings = { settings: [{ get screens() { for (;;) ; } }] };";
        row("tool before the first frame", script, hang, "", "--version");
        row("tool of a screen", script, toolThatReadsBy(hang), Key::enter, "get|truck");
        row("no tool, an edit field", script, goodTool, keysToEditField.join(), "get|truck");
        row("script", endlessScript, goodTool, "", "--version");
        row("getter", endlessGetter, goodTool, "", "--version");
    }

    void interruptBeforeMain()
    {
        Session session;
        // Blocked by the shell, SIGINT is pending when the console starts.
        QVERIFY(session.startBy("exec env --block-signal=INT "
                                "sh -c 'kill -INT $$; exec \"$@\"' sh \"$@\""));
        QCOMPARE(session.waitForExit(), endedWell);
        QVERIFY(session.isTerminalRestored());
    }

    void inheritedSignals()
    {
        const Rows row = [](const QString &option, int number, const ExitStatus &status) {
            Session session;
            QVERIFY(session.startBy("exec env " + option + " \"$@\"") && session.hasTitle());
            session.signal(number);
            QCOMPARE(session.waitForExit(), status);
        };
        row("blocked SIGINT", "--block-signal=INT", SIGINT, endedWell);
        row("ignored SIGINT", "--ignore-signal=INT", SIGINT, endedWell);
        row("blocked SIGTERM", "--block-signal=TERM", SIGTERM, { ExitStatus::Killed, SIGTERM });
    }

    void toolGetsInheritedMask()
    {
        Session session;
        // Bash passes the mask on to what it runs, other shells clear it.
        writeFile(session.device.paths().backendTool,
            "#!/bin/bash\ngrep SigBlk /proc/self/status > \"${0%/*}/mask\"\n");
        QVERIFY(session.startBy("exec env --block-signal=TERM \"$@\"") && session.hasTitle());
        QCOMPARE(readFile(session.device.paths().webRoot + "/mask").trimmed(),
            "SigBlk:\t" + QByteArray::number(1 << (SIGTERM - 1), 16).rightJustified(16, '0'));
    }

    void ignoredSignals()
    {
        Session session;
        QVERIFY(session.startBy("exec env --ignore-signal=TERM --ignore-signal=TSTP \"$@\""));
        QVERIFY(session.hasTitle());
        session.mark();
        session.signal(SIGTERM);
        session.signal(SIGTSTP);
        QVERIFY(session.press({ Key::redraw }) && session.waitForRest());
        QCOMPARE(session.bytesSinceMark(), QByteArray());
        QCOMPARE(session.endBy("Q"), endedWell);
    }

    void stuckOutput()
    {
        const Rows row = [](const QByteArray &key, int signal, int idleMs,
                             const ExitStatus &status) {
            Session session;
            QVERIFY(session.start(idleMs));
            // The console waits for room in the terminal, also where it could poll in a loop.
            session.setInputBlocking(signal == 0);
            session.stopOutput();
            QVERIFY(session.press({ key }) && session.waitForRest());
            session.signal(signal);
            QCOMPARE(session.waitForExit(), status);
            QVERIFY((session.attributes().c_lflag & (ICANON | ECHO)) == (ICANON | ECHO));
        };
        constexpr int none = 0;
        constexpr int usual = 180000;
        row("SIGTERM", Key::down, SIGTERM, usual, { ExitStatus::Killed, SIGTERM });
        row("Ctrl-C", Key::down, SIGINT, usual, endedWell);
        row("Q", "q", none, usual, endedWell);
        row("idle time", Key::down, none, int(PtySession::scaled(700)), endedWell);
    }

    void keyRestartsIdleTime()
    {
        const int idleMs = int(PtySession::scaled(1000));
        Session session;
        QVERIFY(session.start(idleMs));
        QVERIFY(session.waitFor([&] { return session.sinceStart.elapsed() >= idleMs / 2; }));
        QVERIFY(session.press({ Key::down }));
        QVERIFY(session.waitFor([&] { return session.sinceStart.elapsed() >= idleMs * 5 / 4; }));
        QCOMPARE(session.status(), (ExitStatus { ExitStatus::Running, 0 }));
        QCOMPARE(session.waitForExit(), endedWell);
    }

    void idleTimeEndsEverySession()
    {
        const Rows row = [](const QByteArray &script, const QByteArray &bytes) {
            const int idleMs = int(PtySession::scaled(700));
            Session session;
            session.device.setScript(script);
            QVERIFY(session.run(24, 80, idleMs));
            QVERIFY(session.waitForCall("--version") && session.send(bytes));
            QCOMPARE(session.waitForExit(), endedWell);
            QVERIFY(session.sinceStart.elapsed() >= idleMs);
            QVERIFY(session.isTerminalRestored());
        };
        row("lone ESC", script, "\x1b");
        row("ESC [ 5", script, "\x1b[5");
        row("endless script", endlessScript, "");
    }

    void toolIsStarting()
    {
        const Rows row = [](int number) {
            const int attempts = qMax(5, qEnvironmentVariableIntValue("DRAVIKON_TEST_ENDINGS"));
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
                endBy(number, session);
                QVERIFY(session.waitForExit().state != ExitStatus::Running);
                QVERIFY2(waitForEndOfTool(session), qPrintable(QString::number(i)));
            }
        };
        row("hang-up", SIGHUP);
        row("SIGTERM", SIGTERM);
        row("Ctrl-C", SIGINT);
    }

    void stopAndContinue()
    {
        const Rows row = [](const QByteArrayList &keys, const QString &text, bool cursorVisible) {
            Session session;
            QVERIFY(startAsJob(session, "\"$@\"; echo stopped; read x; fg > /dev/null"));
            QVERIFY(session.send(keys.join()) && session.waitForText(text));
            const QStringList before = session.terminal().screen();
            const tcflag_t mode = session.attributes().c_lflag;
            QVERIFY(session.send("\x1a") && session.waitForText("stopped"));
            QVERIFY(session.isTerminalRestored());
            // What the shell writes is not in the middle of the menu.
            QCOMPARE(session.terminal().row(22), "stopped");
            QVERIFY(session.send("\n"));
            QVERIFY(session.waitFor([&] { return session.terminal().screen() == before; }));
            QCOMPARE(session.attributes().c_lflag, mode);
            QCOMPARE(session.terminal().cursorVisible(), cursorVisible);
            QCOMPARE(session.endBy(Key::escape + 'q'), endedWell);
        };
        row("menu", { Key::redraw }, "truck", false);
        row("edit field", keysToEditField, "Enter new Value", true);
    }

    // The process group is orphaned: the system discards the stop, and nobody would continue it.
    void stopWithoutShell()
    {
        const Rows row = [](const QString &command) {
            Session session;
            session.setStandardError("/dev/tty");
            QVERIFY(session.startBy(command) && session.hasTitle());
            const tcflag_t mode = session.attributes().c_lflag;
            session.mark();
            QVERIFY(session.send("\x1a") && session.waitForRedraw());
            QCOMPARE(session.attributes().c_lflag, mode);
            QCOMPARE(session.endBy("q"), endedWell);
        };
        row("login program", "exec \"$@\"");
        row("command of a login script", "\"$@\"; exit $?");
    }

    void continueAfterSigstop()
    {
        Session session;
        QVERIFY(session.start());
        session.mark();
        session.signal(SIGSTOP);
        session.signal(SIGCONT);
        QVERIFY(session.waitForRedraw());
    }

    void endWhileStopped()
    {
        const Rows row = [](const QString &commands, const QString &text) {
            Session session;
            QVERIFY(startAsJob(session, commands));
            QVERIFY(session.send("\x1a") && session.waitForText(text));
        };
        row("SIGTERM", "\"$@\"; kill %1; read x", "ended by signal 15");
        row("shell that continues nothing by itself",
            "exec dash -c 'set -m; \"$@\"; kill %1; fg' dash \"$@\"", "ended by signal 15");
        row("Ctrl-C in the background",
            "\"$@\"; kill -INT %1; kill -CONT %1; wait %1; echo status $?; read x", "status 0");
        row("Ctrl-C after a stop in the background",
            "\"$@\"; bg; wait %1; kill -INT %1; bg; wait %1; echo status $?; read x", "status 0");
    }
};

QTEST_GUILESS_MAIN(EndingTest)
#include "EndingTest.moc"
