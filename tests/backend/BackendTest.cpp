#include "backend/BackendTool.h"
#include "menu/TreeViewItemHandler.h"
#include "terminal/PtySession.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Rows.h"

#include <csignal>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

Q_DECLARE_METATYPE(ToolEnd)

class BackendTest : public QObject {
    Q_OBJECT

    FakeDevice device;
    TreeViewItemHandler handler { device.paths() };
    const QString word = QStringLiteral("word");

private slots:
    void init() { device.takeCalls(); }

    void understandsAnswers_data()
    {
        const Rows<QByteArray, QByteArray, bool> row("commands", "list", "confirmsWrite");
        row("true", "echo [true]", "[true]", true);
        row("empty list", "echo []", "[]", false);
        row("no list", "echo true", "[]", false);
        row("no JSON", "echo '[1] x'", "[]", false);
        row("up to a NUL byte", "printf '[1]\\000x'", "[1]", true);
        row("crash", "echo x >&2; printf [3]; kill -SEGV $$", "[3]", true);
        row("closed output", "echo [5]; exec >&-; sleep 0.1", "[5]", true);
    }

    void understandsAnswers()
    {
        QFETCH(QByteArray, commands);
        device.setTool(commands);
        const QVariantList values = handler.scriptHelper().read({ word }, true);
        QTEST(ScriptHelper::variantListToJson(values).toUtf8(), "list");
        QStringList arguments(word);
        QTEST(handler.scriptHelper().write(arguments, values), "confirmsWrite");
    }

    void observesRuns_data()
    {
        const Rows<QByteArray, ToolEnd, QByteArray, QByteArray> row(
            "commands", "end", "output", "errors");
        row("exit status", "echo [1]; echo x >&2; exit 3", { ToolEnd::Exited, 3 }, "[1]\n", "x\n");
        row("signal", "echo [1]; kill -USR1 $$", { ToolEnd::Signalled, SIGUSR1 }, "[1]\n", "");
        row("too slow", "echo [1]; exec sleep 60", { ToolEnd::TimedOut, 0 }, "[1]\n", "");
        row("console stopped", "kill -STOP $PPID; sleep 2; kill -CONT $PPID; sleep 0.2; echo [1]",
            { ToolEnd::Exited, 0 }, "[1]\n", "");
        row("too much", "head -c 16777217 /dev/zero", { ToolEnd::PrintedTooMuch, 0 }, "", "");
        row("many errors", "yes | head -c 1000000 >&2; echo [1]", { ToolEnd::Exited, 0 }, "[1]\n",
            QByteArray("y\n").repeated(32768));
    }

    void observesRuns()
    {
        QFETCH(QByteArray, commands);
        QFETCH(ToolEnd, end);
        device.setTool(commands);
        const int timeoutMs = int(PtySession::scaled(commands.contains("sleep") ? 1000 : 30000));
        const ToolRun run = BackendTool::observedRun(device.paths().backendTool, {}, timeoutMs);
        QCOMPARE(run.end.kind, end.kind);
        QCOMPARE(run.end.number, end.number);
        QTEST(run.output, "output");
        QTEST(run.errors, "errors");
        QVERIFY(run.durationUs > 0 && run.durationUs < (timeoutMs + 500) * 1000LL);
    }

    void observesWhyNothingStarts()
    {
        const QString folder = device.paths().webRoot;
        const auto error = [](const QString &tool) {
            const ToolEnd end = BackendTool::observedRun(tool, {}).end;
            return end.kind == ToolEnd::NotStarted ? end.number : 0;
        };
        QCOMPARE(error(folder), EACCES);
        QCOMPARE(error(folder + QStringLiteral("/none")), ENOENT);
    }

    void passesArgumentsAsTheyAre()
    {
        QStringList arguments { QStringLiteral("two  \"words"), QString() };
        handler.scriptHelper().write(arguments, { true, QStringLiteral("ä") });
        QCOMPARE(device.takeCalls().join(QLatin1Char(' ')).toUtf8(),
            QByteArray("two  \"words||[true,\"\\u00e4\"]"));
        QVERIFY(!handler.scriptHelper().write(arguments, { qQNaN() }));
        QCOMPARE(device.takeCalls(), QStringList());
    }

    void killsWhatHangs_data()
    {
        const Rows<QByteArray, int, bool> row("tool", "timeoutMs", "childLives");
        row("waits for its child", "sleep 60 & echo $$ $!; wait", 2000, false);
        row("stops itself", "sleep 60 & echo $$ $!; kill -STOP $$", 2000, false);
        row("ends, and leaves a child", "sleep 60 & echo $$ $!", 30000, true);
    }

    void killsWhatHangs()
    {
        QFETCH(QByteArray, tool);
        QFETCH(int, timeoutMs);
        QFETCH(bool, childLives);
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
        QTRY_COMPARE_WITH_TIMEOUT(QFileInfo::exists(QStringLiteral("/proc/%1/exe").arg(child)),
            childLives, PtySession::scaled(5000));
        kill(child, SIGKILL);
    }

    // The terminal's Ctrl-Z reaches neither the tool nor, while it is started, the console for it.
    void runsToolsInSessionsOfTheirOwn()
    {
        device.setTool("read -r process name state parent group session terminal rest"
                       " < /proc/$$/stat; echo $((session - $$)) $((group - $$)) $terminal");
        QCOMPARE(handler.scriptHelper().run({ word }), QByteArray("0 0 0\n"));
    }

    void takesAnswersUpTo16MiB()
    {
        device.setTool("head -c $1 /dev/zero");
        QCOMPARE(handler.scriptHelper().run({ QStringLiteral("16777216") }).size(), 16777216);
        QCOMPARE(handler.scriptHelper().run({ QStringLiteral("16777217") }).size(), 0);
    }

    void killsWhatPrintsWithoutEnd()
    {
        const int timeoutMs = int(PtySession::scaled(5000));
        device.setTool("exec cat /dev/zero");
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(BackendTool::run(device.paths().backendTool, {}, timeoutMs), QByteArray());
        QVERIFY(timer.elapsed() < timeoutMs);
    }

    void startsToolsWithUsualSignals()
    {
        device.setTool("grep SigIgn /proc/self/status");
        signal(SIGCHLD, SIG_IGN);
        signal(SIGPIPE, SIG_IGN);
        const QByteArray answer = handler.scriptHelper().run({ word }).trimmed();
        signal(SIGCHLD, SIG_DFL);
        bool isMask = false;
        const quint64 ignored = answer.right(16).toULongLong(&isMask, 16);
        QVERIFY2(isMask, answer.constData());
        QCOMPARE(ignored & (1ULL << (SIGCHLD - 1) | 1ULL << (SIGPIPE - 1)), 0ULL);
    }

    void startsNoOtherFiles_data()
    {
        const Rows<QString> row("path");
        row("not executable", "/scripts/settings.js");
        row("folder", "/scripts");
        row("none", "/none");
    }

    void startsNoOtherFiles()
    {
        QFETCH(QString, path);
        device.setScript("not executable");
        QCOMPARE(BackendTool::run(device.paths().webRoot + path, {}), QByteArray());
    }
};

QTEST_GUILESS_MAIN(BackendTest)
#include "BackendTest.moc"
