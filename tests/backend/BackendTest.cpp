#include "backend/BackendTool.h"
#include "menu/TreeViewItemHandler.h"
#include "terminal/PtySession.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Rows.h"

#include <csignal>

#include <unistd.h>

class BackendTest : public QObject {
    Q_OBJECT

    FakeDevice device;
    TreeViewItemHandler handler { device.paths() };
    const QString word = "word";

private slots:
    void init() { device.takeCalls(); }

    void understandsAnswers()
    {
        const Rows row = [this](const QByteArray &commands, const QByteArray &list,
                             bool confirmsWrite) {
            device.setTool(commands);
            const QVariantList values = handler.scriptHelper().read({ word }, true);
            QCOMPARE(ScriptHelper::variantListToJson(values).toUtf8(), list);
            QStringList arguments(word);
            QCOMPARE(handler.scriptHelper().write(arguments, values), confirmsWrite);
        };
        row("true", "echo [true]", "[true]", true);
        row("empty list", "echo []", "[]", false);
        row("no list", "echo true", "[]", false);
        row("no JSON", "echo '[1] x'", "[]", false);
        row("up to a NUL byte", "printf '[1]\\000x'", "[1]", true);
        row("crash", "echo x >&2; printf [3]; kill -SEGV $$", "[3]", true);
        row("closed output", "echo [5]; exec >&-; sleep 0.1", "[5]", true);
    }

    // While the console itself is stopped, the tool's time does not run out.
    void waitsForToolsAfterAStop()
    {
        device.setTool("kill -STOP $PPID; sleep 1; kill -CONT $PPID; sleep 0.1; echo [1]");
        const int timeoutMs = int(PtySession::scaled(500));
        const ToolRun run = BackendTool::observedRun(device.paths().backendTool, {}, timeoutMs);
        QCOMPARE(run.output, QByteArray("[1]\n"));
        QVERIFY(run.durationUs > 0 && run.durationUs < (timeoutMs + 500) * 1000LL);
    }

    void keepsTheFirstErrors()
    {
        device.setTool("yes | head -c 1000000 >&2; echo [1]");
        const ToolRun run = BackendTool::observedRun(device.paths().backendTool, {});
        QCOMPARE(run.output, QByteArray("[1]\n"));
        QCOMPARE(run.errors, QByteArray("y\n").repeated(32768));
    }

    void passesArgumentsAsTheyAre()
    {
        QStringList arguments { "two  \"words", QString() };
        handler.scriptHelper().write(arguments, { true, "ä" });
        QCOMPARE(
            device.takeCalls().join(' ').toUtf8(), QByteArray("two  \"words||[true,\"\\u00e4\"]"));
        QVERIFY(!handler.scriptHelper().write(arguments, { qQNaN() }));
        QCOMPARE(device.takeCalls(), QStringList());
    }

    void killsWhatHangs()
    {
        const Rows row = [this](const QByteArray &tool, int timeoutMs, bool childLives) {
            device.setTool(tool);
            QElapsedTimer timer;
            timer.start();
            const auto pids =
                BackendTool::run(device.paths().backendTool, {}, int(PtySession::scaled(timeoutMs)))
                    .split(' ');
            const pid_t parent = pids.value(0).toInt();
            const pid_t child = pids.value(1).toInt();
            QVERIFY(timer.elapsed() < PtySession::scaled(30000));
            QVERIFY(parent > 1 && child > 1 && kill(parent, 0) != 0);
            QTRY_COMPARE_WITH_TIMEOUT(QFileInfo::exists(QString("/proc/%1/exe").arg(child)),
                childLives, PtySession::scaled(5000));
            kill(child, SIGKILL);
        };
        row("waits for its child", "sleep 60 & echo $$ $!; wait", 700, false);
        row("stops itself", "sleep 60 & echo $$ $!; kill -STOP $$", 700, false);
        row("ends, and leaves a child", "sleep 60 & echo $$ $!", 30000, true);
    }

    // The terminal's keys are not the tool's, also not Ctrl-Z while it is started.
    void runsToolsInSessionsOfTheirOwn()
    {
        device.setTool("read -r process name state parent group session terminal rest"
                       " < /proc/$$/stat; echo $((session - $$)) $((group - $$)) $terminal;"
                       " [ /dev/fd/0 -ef /proc/$PPID/fd/0 ] || echo own input");
        QCOMPARE(handler.scriptHelper().run({ word }), QByteArray("0 0 0\nown input\n"));
    }

    void takesAnswersUpTo16MiB()
    {
        device.setTool("exec head -c $1 /dev/zero");
        QCOMPARE(handler.scriptHelper().run({ "16777216" }).size(), 16777216);
        QCOMPARE(handler.scriptHelper().run({ "16777217" }).size(), 0);
    }

    void startsToolsWithUsualSignals()
    {
        signal(SIGCHLD, SIG_IGN);
        signal(SIGPIPE, SIG_IGN);
        const QByteArray answer = BackendTool::run("grep", { "SigIgn", "/proc/self/status" });
        signal(SIGCHLD, SIG_DFL);
        bool isMask = false;
        const quint64 ignored = answer.trimmed().right(16).toULongLong(&isMask, 16);
        QVERIFY2(isMask, answer.constData());
        QCOMPARE(ignored & (1ULL << (SIGCHLD - 1) | 1ULL << (SIGPIPE - 1)), 0ULL);
    }

    void startsNoOtherFiles()
    {
        if (EMULATED)
            return QTest::qSkip("the emulator reports no failed start", __FILE__, __LINE__);
        const Rows row = [this](const QString &path, int error) {
            const ToolRun run = BackendTool::observedRun(device.paths().webRoot + path, {});
            QCOMPARE(run.end.kind, ToolEnd::NotStarted);
            QCOMPARE(run.end.number, error);
            QCOMPARE(run.output, QByteArray());
        };
        device.setScript("not executable");
        row("not executable", "/scripts/settings.js", EACCES);
        row("folder", "/scripts", EACCES);
        row("none", "/none", ENOENT);
    }
};

QTEST_GUILESS_MAIN(BackendTest)
#include "BackendTest.moc"
