// How sessions end or are stopped, and what they leave behind: exit status, terminal, tool.
#include "tests/e2e/Session.h"
#include "tests/support/Rows.h"

#include <QDir>
#include <QElapsedTimer>

#include <csignal>
#include <cstring>

Q_DECLARE_METATYPE(ExitStatus)

namespace {

/// True when a process was started by the name of the device's tool.
bool isToolAlive(const FakeDevice &device)
{
    const QByteArray tool = device.paths().backendTool.toLocal8Bit();
    const QStringList processes =
        QDir(QStringLiteral("/proc")).entryList({ QStringLiteral("[0-9]*") });
    return std::any_of(processes.begin(), processes.end(), [&tool](const QString &process) {
        QFile words(QStringLiteral("/proc/%1/cmdline").arg(process));
        return words.open(QIODevice::ReadOnly) && words.readAll().contains('\0' + tool);
    });
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
        Session session;
        QElapsedTimer timer;
        timer.start();
        QVERIFY(session.startBy(QStringLiteral("exec \"$@\" < /dev/null"), 2000));
        QVERIFY(session.hasTitle());
        session.signal(SIGWINCH); // the wait that it interrupts still ends in time
        QCOMPARE(session.waitForExit(), endedWell);
        QVERIFY(timer.elapsed() >= 2000);
        // One redraw for the end of input, not one after the other until the session ends.
        QVERIFY(session.bytesSinceMark().size() < 2000);
    }

    void deathBySignal_data()
    {
        const Rows<int> row("number");
        for (const int number :
            { SIGTERM, SIGHUP, SIGQUIT, SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGSYS, SIGTRAP,
                SIGUSR1, SIGUSR2, SIGPWR, SIGXCPU, SIGXFSZ, SIGVTALRM, SIGPROF, SIGIO, SIGRTMIN })
            row(strsignal(number), number);
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
        const Rows<QByteArray, QByteArray, QByteArrayList> row("script", "tool", "keys");
        row("menu", script, goodTool, { Key::redraw });
        row("before the first frame", script, hang, {});
        row("opening", script, toolThatReadsBy(hang), { Key::enter });
        row("lone ESC", script, goodTool, { "\x1b" });
        row("edit field", script, goodTool, keysToEditField);
        row("diagnose screen", script, goodTool, keysToDiagnoseScreen);
        row("endless script", "for (;;) ;", goodTool, {});
        row("endless getter", "Settings = { settings: [{ get screens() { for (;;) ; } }] };",
            goodTool, {});
    }

    void interrupt()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, tool);
        QFETCH(QByteArrayList, keys);
        Session session;
        session.device.setScript(script);
        session.device.setTool(tool);
        QVERIFY(session.run());
        if (keys.isEmpty())
            QVERIFY(session.waitFor([&] { return !session.device.takeCalls().isEmpty(); }));
        else
            QVERIFY(session.hasTitle() && session.press(keys));
        QVERIFY(
            !tool.contains(hang) || session.waitFor([&] { return isToolAlive(session.device); }));
        QVERIFY(session.send(Key::interrupt));
        QCOMPARE(session.waitForExit(), endedWell);
        QVERIFY(session.isTerminalRestored());
        QTRY_VERIFY(!isToolAlive(session.device));
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
        // The status after the signal, and after Q if the signal had no effect.
        const Rows<QString, int, ExitStatus> row("option", "number", "status");
        row("blocked SIGINT", "--block-signal=INT", SIGINT, endedWell);
        row("ignored SIGINT", "--ignore-signal=INT", SIGINT, endedWell);
        row("blocked SIGTERM", "--block-signal=TERM", SIGTERM, { ExitStatus::Killed, SIGTERM });
        row("ignored SIGTERM", "--ignore-signal=TERM", SIGTERM, endedWell);
    }

    void inheritedSignals()
    {
        QFETCH(QString, option);
        QFETCH(int, number);
        QFETCH(ExitStatus, status);
        Session session;
        // Bash passes the mask on to what it runs, other shells clear it.
        QFile tool(session.device.paths().backendTool);
        QVERIFY(tool.open(QIODevice::WriteOnly)
            && tool.write("#!/bin/bash\ngrep SigBlk /proc/self/status > \"${0%/*}/mask\"\n") > 0);
        tool.close();
        QVERIFY(session.startBy(QStringLiteral("exec env %1 \"$@\"").arg(option)));
        QVERIFY(session.hasTitle());
        QFile maskFile(session.device.paths().webRoot + QStringLiteral("/mask"));
        QVERIFY(maskFile.open(QIODevice::ReadOnly));
        const quint64 blocked =
            option.startsWith(QLatin1String("--block")) ? 1ULL << (number - 1) : 0;
        QCOMPARE(maskFile.readAll().trimmed().split('\t').last().toULongLong(nullptr, 16), blocked);
        const bool isIgnored = number == SIGTERM && status == endedWell;
        session.signal(number);
        QVERIFY(!isIgnored || (session.press({ Key::redraw }) && session.send("q")));
        QCOMPARE(session.waitForExit(), status);
    }

    void stuckOutput_data()
    {
        const Rows<int, QByteArray, ExitStatus> row("number", "key", "status");
        for (const int number : { SIGTERM, SIGHUP, SIGQUIT, SIGUSR1 })
            row(strsignal(number), number, Key::down, { ExitStatus::Killed, number });
        row("Interrupt", SIGINT, Key::down, endedWell);
        row("Q", 0, "q", endedWell);
        row("idle time", 0, Key::down, endedWell);
    }

    void stuckOutput()
    {
        QFETCH(int, number);
        QFETCH(QByteArray, key);
        QFETCH(ExitStatus, status);
        Session session;
        QVERIFY(session.start(number == 0 && key == Key::down ? 1500 : 180000));
        // The console waits for room in the terminal, also where it could poll in a loop.
        session.setInputBlocking(number == 0);
        session.stopOutput();
        QVERIFY(session.press({ key }) && session.waitForRest());
        session.signal(number);
        QCOMPARE(session.waitForExit(), status);
        QVERIFY((session.attributes().c_lflag & (ICANON | ECHO)) == (ICANON | ECHO));
    }

    void idleTimeEndsEverySession_data()
    {
        const Rows<QByteArray, QByteArray> row("script", "bytes");
        row("key", script, Key::down);
        row("lone ESC", script, "\x1b");
        row("ESC [", script, "\x1b[");
        row("ESC [ 5", script, "\x1b[5");
        row("endless script", "for (;;) ;", "");
        row("endless getter", "Settings = { settings: [{ get screens() { for (;;) ; } }] };", "");
    }

    void idleTimeEndsEverySession()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, bytes);
        constexpr int idleMs = 1500;
        Session session;
        session.device.setScript(script);
        QElapsedTimer sinceStart;
        sinceStart.start();
        QVERIFY(session.run(24, 80, idleMs));
        QVERIFY(bytes.isEmpty() || (session.hasTitle() && session.send(bytes)));
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
        for (int i = 0; i < attempts; ++i) {
            Session session;
            session.device.setTool(toolThatReadsBy("sleep 100; true"));
            QVERIFY(session.start() && session.send(Key::enter));
            // Within the first 5 ms the tool is started.
            QElapsedTimer timer;
            timer.start();
            while (timer.nsecsElapsed() < i * 5000000LL / attempts) { }
            if (number == 0)
                session.hangUp();
            session.signal(number);
            QVERIFY(session.waitForExit().state != ExitStatus::Running);
            QTRY_VERIFY2(!isToolAlive(session.device), qPrintable(QString::number(i)));
        }
    }

    void stopAndContinue_data()
    {
        const Rows<QByteArrayList> row("keys");
        row("menu", { Key::redraw });
        row("edit field", keysToEditField);
    }

    void stopAndContinue()
    {
        QFETCH(QByteArrayList, keys);
        Session session;
        QVERIFY(
            startAsJob(session, QStringLiteral("\"$@\"; echo stopped; read x; fg > /dev/null")));
        const bool isEdit = keys == keysToEditField;
        QVERIFY(session.send(keys.join()));
        QVERIFY(!isEdit || session.waitForText(QStringLiteral("Enter new Value")));
        const QStringList before = session.terminal().screen();
        const tcflag_t mode = session.attributes().c_lflag;
        QVERIFY(session.send("\x1a") && session.waitForText(QStringLiteral("stopped")));
        QVERIFY(session.isTerminalRestored());
        // What the shell writes is not in the middle of the menu.
        QCOMPARE(session.terminal().row(22), QStringLiteral("stopped"));
        QVERIFY(session.send("\n"));
        QVERIFY(session.waitFor([&] { return session.terminal().screen() == before; }));
        QCOMPARE(session.attributes().c_lflag, mode);
        QCOMPARE(session.terminal().cursorVisible(), isEdit);
        QVERIFY(session.send(Key::escape + 'q'));
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

    void endWhileStopped()
    {
        Session session;
        QVERIFY(startAsJob(session, QStringLiteral("\"$@\"; kill %1; read x")));
        QVERIFY(session.send("\x1a") && session.waitForText(QStringLiteral("ended by signal 15")));
    }
};

QTEST_GUILESS_MAIN(EndingTest)
#include "EndingTest.moc"
