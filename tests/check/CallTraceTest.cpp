#include "check/CallTrace.h"
#include "json/JsonReader.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Files.h"
#include "tests/support/Rows.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class CallTraceTest : public QObject {
    Q_OBJECT

    FakeDevice device;
    const QTemporaryDir directory;
    const QString path = directory.filePath("trace");

    static QVariantMap objectFrom(const QByteArray &line)
    {
        return parseJson(line).value_or(QVariant()).toMap();
    }

private slots:
    void writesRuns()
    {
        const Rows row = [this](const QString &tool, const QByteArray &commands,
                             const QByteArray &rest) {
            const bool isSlow = rest.contains("too long");
            device.setTool(commands);
            CallTrace trace;
            QCOMPARE(trace.open(path), QString());
            const QTime before = QTime::currentTime();
            const QStringList arguments { "get_menu", "two words" };
            const QByteArray output = trace.run(tool, arguments, isSlow ? 500 : 30000).output;
            QVariantMap object = objectFrom(readFile(path));
            const QTime time = QTime::fromString(object.take("time").toString(), "HH:mm:ss.zzz");
            QVERIFY(time.isValid() && before.msecsTo(time) < 10000);
            QCOMPARE(object.take("ms").toInt() >= 500, isSlow);
            QCOMPARE(object.take("arguments").toStringList(), arguments);
            QCOMPARE(object.value("answer").toString(), QString::fromUtf8(output));
            QCOMPARE(object, objectFrom(rest));
        };
        const QString tool = device.paths().backendTool;
        row("answer", tool, "echo [true]", R"({"answer": "[true]\n", "errors": "", "exit": 0})");
        row("exit status", tool, "echo no >&2; exit 3",
            R"({"answer": "", "errors": "no\n", "exit": 3})");
        row("signal", tool, "echo [1]; kill -USR1 $$",
            R"({"answer": "[1]\n", "errors": "", "signal": 10})");
        row("too slow", tool, "echo [1]; exec sleep 60",
            R"({"answer": "[1]\n", "errors": "", "killed": "it took too long"})");
        row("too much", tool, "exec cat /dev/zero",
            R"({"answer": "", "errors": "", "killed": "it printed too much"})");
        row("no UTF-8", tool, "printf '\\377\\033'",
            R"({"answer": "\ufffd\u001b", "errors": "", "exit": 0})");
        if (!EMULATED) // see startsNoOtherFiles
            row("folder", directory.path(), "",
                R"({"answer": "", "errors": "", "notStarted": "Permission denied"})");
    }

    void dropsWhatAPipeDoesNotTake()
    {
        QCOMPARE(mkfifo(QFile::encodeName(path + "-pipe").constData(), 0600), 0);
        CallTrace trace;
        QCOMPARE(trace.open(path + "-pipe"), QString());
        device.setTool("head -c $1 /dev/zero | tr '\\0' x");
        // The first line fits, the second is cut off by the end of the pipe, the third is dropped.
        for (const int bytes : { 50000, 50001, 10 })
            trace.run(device.paths().backendTool, { QString::number(bytes) });
        const QByteArray name = QFile::encodeName(path + "-pipe");
        QFile pipe;
        QVERIFY(pipe.open(open(name.constData(), O_RDONLY | O_NONBLOCK),
            QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle));
        QByteArray lines = pipe.read(100000);
        trace.run(device.paths().backendTool, { "20" });
        lines += pipe.read(100000);
        QStringList calls;
        for (const QByteArray &line : lines.trimmed().split('\n'))
            calls += objectFrom(line).value("arguments").toStringList();
        QCOMPARE(calls.join(' '), "50000 50001 20");
    }
};

QTEST_GUILESS_MAIN(CallTraceTest)
#include "CallTraceTest.moc"
