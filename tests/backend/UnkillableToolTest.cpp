// A tool that runs as another user, here by its set-uid bit, cannot be killed.
#include "backend/BackendTool.h"
#include "terminal/PtySession.h"

#include <QtTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

enum Outcome { GivenUp, NotGivenUp, NoEffect };

/// Runs a copy of setpriv that belongs to root and has its set-uid bit, as nobody.
Outcome runAsNobody(const QString &setpriv)
{
    constexpr uid_t nobody = 65534;
    const QString asRoot = "--reuid=0";
    if (setuid(nobody) != 0 || QProcess::execute(setpriv, { asRoot, "true" }) != 0)
        return NoEffect;
    const QByteArray answer = BackendTool::run(
        setpriv, { asRoot, "sh", "-c", "echo $(id -ru); sleep 30" }, int(PtySession::scaled(1000)));
    return answer == "0\n" ? GivenUp : NotGivenUp;
}

} // namespace

class UnkillableToolTest : public QObject {
    Q_OBJECT

private slots:
    void isGivenUp()
    {
        QTemporaryDir directory;
        const QString tool = directory.filePath("setpriv");
        QVERIFY(QFile::copy("/usr/bin/setpriv", tool));
        QCOMPARE(chmod(QFile::encodeName(directory.path()).constData(), 0755), 0);
        QCOMPARE(chmod(QFile::encodeName(tool).constData(), 04755), 0);
        const pid_t console = fork();
        if (console == 0)
            _exit(runAsNobody(tool));
        int status = -1;
        QTRY_VERIFY_WITH_TIMEOUT(status >= 0 || waitpid(console, &status, WNOHANG) == console,
            PtySession::scaled(15000));
        QVERIFY(WIFEXITED(status));
        if (WEXITSTATUS(status) == NoEffect)
            return QTest::qSkip("a set-uid bit has no effect here", __FILE__, __LINE__);
        QCOMPARE(WEXITSTATUS(status), int(GivenUp));
    }
};

QTEST_GUILESS_MAIN(UnkillableToolTest)
#include "UnkillableToolTest.moc"
