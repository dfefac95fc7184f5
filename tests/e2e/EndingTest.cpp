// How sessions end or are stopped, and what they leave behind: exit status, terminal, tool.
#include "tests/e2e/Session.h"
#include "tests/support/RunProgram.h"

#include <QDir>
#include <QElapsedTimer>
#include <QtTest>

#include <csignal>
#include <cstring>

Q_DECLARE_METATYPE(ExitStatus)

namespace {

/// How many times the rare cases are tried.
int attempts()
{
    return qMax(8, qEnvironmentVariableIntValue("DRAVIKON_TEST_ENDINGS"));
}

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

bool isSwitched(const PtyProcess &process)
{
    return !(process.attributes().c_lflag & (ICANON | ECHO));
}

} // namespace

class EndingTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("ASAN_OPTIONS", "handle_segv=0:handle_sigbus=0:handle_sigfpe=0:disable_coredump=1");
    }
    void endOfSession_data();
    void endOfSession();
    void idleEnd();
    void endOfInput();
    void deathBySignal_data();
    void deathBySignal();
    void stackOverflow();
    void interrupt_data();
    void interrupt();
    void interruptBeforeMain();
    void inheritedSignals_data();
    void inheritedSignals();
    void stuckOutput_data();
    void stuckOutput();
    void toolIsStarting_data();
    void toolIsStarting();
    void stopAndContinue_data();
    void stopAndContinue();
    void endWhileStopped();
};

void EndingTest::endOfSession_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("q") << QByteArray("q");
    QTest::newRow("Q") << QByteArray("Q");
    QTest::newRow("Ctrl-C") << Key::interrupt;
}

void EndingTest::endOfSession()
{
    QFETCH(QByteArray, key);
    Session session;
    QVERIFY(session.start());
    QVERIFY(isSwitched(session) && session.attributes().c_lflag & ISIG);
    QVERIFY(!session.terminal().cursorVisible());
    QVERIFY(session.send(key));
    QCOMPARE(session.waitForExit(), endedWell);
    QVERIFY(session.isTerminalRestored());
    QCOMPARE(session.terminal().screen().join(QString()), QString());
    QVERIFY(!session.terminal().backgrounds(0).contains(QLatin1Char('r')));
}

void EndingTest::idleEnd()
{
    Session session;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(session.run(console, 24, 80, 300));
    QCOMPARE(session.waitForExit(), endedWell);
    QVERIFY(timer.elapsed() >= 300 && session.bytesSinceMark().contains("Dravikon ver"));
    QVERIFY(session.isTerminalRestored());
}

void EndingTest::endOfInput()
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

void EndingTest::deathBySignal_data()
{
    QTest::addColumn<int>("number");
    for (const int number : { SIGTERM, SIGHUP, SIGQUIT, SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL,
             SIGSYS, SIGTRAP, SIGUSR1, SIGUSR2, SIGPWR, SIGXCPU, SIGXFSZ, SIGVTALRM, SIGPROF, SIGIO,
             SIGRTMIN, SIGRTMAX })
        QTest::addRow("%d, %s", number, strsignal(number)) << number;
}

void EndingTest::deathBySignal()
{
    QFETCH(int, number);
    Session session;
    // In an edit field the text cursor stands in colours.
    QVERIFY(session.start() && session.press(keysToEditField));
    session.mark();
    session.signal(number);
    QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Killed, number }));
    QVERIFY(session.isTerminalRestored());
    QCOMPARE(session.bytesSinceMark(), QByteArray("\x1b[?25h\x1b[0m"));
    QVERIFY(session.messages().endsWith(
        QStringLiteral("ended by signal %1.\n").arg(number, 2, 10, QLatin1Char('0'))));
}

void EndingTest::stackOverflow()
{
    Session session;
    session.device.setScript("new RegExp(Array(1e5).join('(') + Array(1e5).join(')'));");
    QVERIFY(session.run(console));
    QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Killed, SIGSEGV }));
    QVERIFY(session.isTerminalRestored());
    QVERIFY(session.messages().endsWith(QLatin1String("ended by signal 11.\n")));
}

void EndingTest::interrupt_data()
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

void EndingTest::interrupt()
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
    QFile pidFile(session.device.paths().webRoot + QStringLiteral("/pid"));
    pid_t pid = 0;
    if (tool.contains(hang)) {
        QVERIFY(session.waitFor([&] { return pidFile.size() > 0; }));
        QVERIFY(pidFile.open(QIODevice::ReadOnly));
        pid = pidFile.readAll().trimmed().toInt();
        QVERIFY(pid > 1 && kill(pid, 0) == 0);
    }
    QVERIFY(session.send(Key::interrupt));
    QCOMPARE(session.waitForExit(), endedWell);
    QVERIFY(session.isTerminalRestored());
    QVERIFY(pid == 0 || kill(pid, 0) != 0);
}

void EndingTest::interruptBeforeMain()
{
    Session session;
    // Blocked by the shell, SIGINT is pending when the console starts.
    const QString commands = QStringLiteral("kill -INT $$; exec \"$@\"");
    QVERIFY(session.startBy({ QStringLiteral("env"), QStringLiteral("--block-signal=INT"),
        QStringLiteral("sh"), QStringLiteral("-c"), commands, QStringLiteral("sh") }));
    QCOMPARE(session.waitForExit(), endedWell);
    QVERIFY(session.isTerminalRestored());
}

void EndingTest::inheritedSignals_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<int>("number");
    QTest::addColumn<ExitStatus>("status"); // after the signal, and Q if it had no effect
    QTest::newRow("blocked SIGINT") << QStringLiteral("--block-signal=INT") << SIGINT << endedWell;
    QTest::newRow("ignored SIGINT") << QStringLiteral("--ignore-signal=INT") << SIGINT << endedWell;
    QTest::newRow("blocked SIGTERM") << QStringLiteral("--block-signal=TERM") << SIGTERM
                                     << ExitStatus { ExitStatus::Killed, SIGTERM };
    QTest::newRow("ignored SIGTERM")
        << QStringLiteral("--ignore-signal=TERM") << SIGTERM << endedWell;
}

void EndingTest::inheritedSignals()
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
    QVERIFY(session.PtySession::start(
        QStringLiteral("env"), QStringList { option, console } + session.arguments(), 24, 80));
    QVERIFY(session.hasTitle());
    QFile maskFile(session.device.paths().webRoot + QStringLiteral("/mask"));
    QVERIFY(maskFile.open(QIODevice::ReadOnly));
    const quint64 blocked = option.startsWith(QLatin1String("--block")) ? 1ULL << (number - 1) : 0;
    QCOMPARE(maskFile.readAll().trimmed().split('\t').last().toULongLong(nullptr, 16), blocked);
    const bool isIgnored = number == SIGTERM && status == endedWell;
    session.signal(number);
    QVERIFY(!isIgnored || (session.press({ Key::redraw }) && session.send("q")));
    QCOMPARE(session.waitForExit(), status);
}

void EndingTest::stuckOutput_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<ExitStatus>("status");
    for (const int number : { SIGTERM, SIGHUP, SIGQUIT, SIGUSR1 })
        QTest::addRow("%s", strsignal(number))
            << number << Key::down << ExitStatus { ExitStatus::Killed, number };
    QTest::newRow("Interrupt") << SIGINT << Key::down << endedWell;
    QTest::newRow("Q") << 0 << QByteArray("q") << endedWell;
    QTest::newRow("idle time") << 0 << Key::down << endedWell;
}

void EndingTest::stuckOutput()
{
    QFETCH(int, number);
    QFETCH(QByteArray, key);
    QFETCH(ExitStatus, status);
    Session session;
    QVERIFY(session.start(number == 0 && key == Key::down ? 1500 : 180000));
    session.stopOutput();
    QVERIFY(session.press({ key }));
    session.signal(number);
    QCOMPARE(session.waitForExit(), status);
    QVERIFY((session.attributes().c_lflag & (ICANON | ECHO)) == (ICANON | ECHO));
}

void EndingTest::toolIsStarting_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("hang-up") << 0;
}

void EndingTest::toolIsStarting()
{
    QFETCH(int, number);
    for (int i = 0; i < attempts(); ++i) {
        Session session;
        session.device.setTool(toolThatReadsBy("sleep 100; true"));
        QVERIFY(session.start() && session.send(Key::enter));
        // Within the first 5 ms the tool is started.
        QElapsedTimer timer;
        timer.start();
        while (timer.nsecsElapsed() < i * 5000000LL / attempts()) { }
        if (number == 0)
            session.hangUp();
        session.signal(number);
        const ExitStatus status = session.waitForExit();
        QVERIFY(status.state != ExitStatus::Running);
        QTRY_VERIFY2(!isToolAlive(session.device), qPrintable(QString::number(i)));
    }
}

void EndingTest::stopAndContinue_data()
{
    QTest::addColumn<QByteArrayList>("keys");
    QTest::newRow("menu") << QByteArrayList { Key::redraw };
    QTest::newRow("edit field") << keysToEditField;
}

void EndingTest::stopAndContinue()
{
    QFETCH(QByteArrayList, keys);
    Session session;
    session.setStandardError(QStringLiteral("/dev/tty"));
    // A shell with job control, in which the console is stopped and taken to the front again.
    const QString commands = QStringLiteral("\"$@\"; echo stopped; read x; fg > /dev/null");
    QVERIFY(session.startBy(
        { QStringLiteral("/bin/bash"), QStringLiteral("-mc"), commands, QStringLiteral("bash") }));
    QVERIFY(session.waitForText(QStringLiteral("|Setup ver: 7|DBC ver: 1.4.2")));
    const bool isEdit = keys == keysToEditField;
    QVERIFY(session.send(keys.join()));
    QVERIFY(!isEdit || session.waitForText(QStringLiteral("Enter new Value")));
    const QStringList before = session.terminal().screen();
    QVERIFY(session.send("\x1a") && session.waitForText(QStringLiteral("stopped")));
    QVERIFY(session.isTerminalRestored());
    QVERIFY(session.send("\n"));
    QVERIFY(session.waitFor([&] { return session.terminal().screen() == before; }));
    QVERIFY(isSwitched(session));
    QCOMPARE(session.terminal().cursorVisible(), isEdit);
    QVERIFY(session.send(Key::escape + 'q'));
    QCOMPARE(session.waitForExit(), endedWell);
}

void EndingTest::endWhileStopped()
{
    Session session;
    session.setStandardError(QStringLiteral("/dev/tty"));
    const QString commands = QStringLiteral("\"$@\"; kill %1; read x");
    QVERIFY(session.startBy(
        { QStringLiteral("/bin/bash"), QStringLiteral("-mc"), commands, QStringLiteral("bash") }));
    QVERIFY(session.waitForText(QStringLiteral("|Setup ver: 7|DBC ver: 1.4.2")));
    QVERIFY(session.send("\x1a") && session.waitForText(QStringLiteral("ended by signal 15")));
}

QTEST_GUILESS_MAIN(EndingTest)
#include "EndingTest.moc"
