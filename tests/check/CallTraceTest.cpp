#include "check/CallTrace.h"
#include "json/JsonReader.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Rows.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class CallTraceTest : public QObject {
    Q_OBJECT

    FakeDevice device;
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("trace"));

    static QVariantMap objectFrom(const QByteArray &line)
    {
        return parseJson(line).value_or(QVariant()).toMap();
    }

private slots:
    void writesRuns_data()
    {
        const Rows<QByteArray, QByteArray, QString, QString, QString> row(
            "commands", "key", "end", "answer", "errors");
        row("answer", "echo [true]", "exit", "0", "[true]\n", "");
        row("exit status", "echo no >&2; exit 3", "exit", "3", "", "no\n");
        row("signal", "echo [1]; kill -USR1 $$", "signal", "10", "[1]\n", "");
        row("too slow", "echo [1]; exec sleep 60", "killed", "it took too long", "[1]\n", "");
        row("too long", "head -c 16777217 /dev/zero", "killed", "it printed too much", "", "");
        row("no UTF-8", "printf '\\377\\033'", "exit", "0", "\uFFFD\u001b", "");
        row("not executable", "", "notStarted", "Permission denied", "", "");
    }

    void writesRuns()
    {
        QFETCH(QByteArray, commands);
        QFETCH(QByteArray, key);
        QFETCH(QString, end);
        device.setTool(commands);
        const QString tool =
            commands.isEmpty() ? device.paths().webRoot : device.paths().backendTool;
        CallTrace trace;
        QCOMPARE(trace.open(path), QString());
        const QTime before = QTime::currentTime();
        const QStringList arguments { QStringLiteral("get_menu"), QStringLiteral("two words") };
        const bool isSlow = end == QLatin1String("it took too long");
        const QByteArray output = trace.run(tool, arguments, isSlow ? 500 : 30000).output;
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVariantMap object = objectFrom(file.readAll());
        const QTime time = object.take(QStringLiteral("time")).toTime();
        QVERIFY(time.isValid() && before.msecsTo(time) < 10000);
        QCOMPARE(object.take(QStringLiteral("ms")).toInt() >= 500, isSlow);
        QCOMPARE(object.take(QStringLiteral("arguments")).toStringList(), arguments);
        QCOMPARE(object.take(QLatin1String(key)).toString(), end);
        QCOMPARE(object.value(QStringLiteral("answer")).toString(), QString::fromUtf8(output));
        QTEST(object.take(QStringLiteral("answer")).toString(), "answer");
        QTEST(object.take(QStringLiteral("errors")).toString(), "errors");
        QVERIFY(object.isEmpty());
    }

    void dropsWhatAPipeDoesNotTake()
    {
        QCOMPARE(mkfifo(QFile::encodeName(path + QStringLiteral("-pipe")).constData(), 0600), 0);
        CallTrace trace;
        QCOMPARE(trace.open(path + QStringLiteral("-pipe")), QString());
        device.setTool("head -c $1 /dev/zero | tr '\\0' x");
        // The first line fits, the second is cut off by the end of the pipe, the third is dropped.
        for (const int bytes : { 50000, 50001, 10 })
            trace.run(device.paths().backendTool, { QString::number(bytes) });
        const QByteArray name = QFile::encodeName(path + QStringLiteral("-pipe"));
        QFile pipe;
        QVERIFY(pipe.open(open(name.constData(), O_RDONLY | O_NONBLOCK),
            QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle));
        QByteArray lines = pipe.read(100000);
        trace.run(device.paths().backendTool, { QStringLiteral("20") });
        lines += pipe.read(100000);
        QStringList calls;
        for (const QByteArray &line : lines.trimmed().split('\n'))
            calls += objectFrom(line).value(QStringLiteral("arguments")).toStringList();
        QCOMPARE(calls.join(QLatin1Char(' ')), QStringLiteral("50000 50001 20"));
    }

    void reportsWhatCannotBeOpened()
    {
        CallTrace trace;
        QCOMPARE(trace.open(directory.path()),
            QStringLiteral("cannot write %1: Is a directory").arg(directory.path()));
        QVERIFY(!trace.isOpen());
        device.setTool("echo [1]");
        QCOMPARE(trace.run(device.paths().backendTool, {}).output, QByteArray("[1]\n"));
    }
};

QTEST_GUILESS_MAIN(CallTraceTest)
#include "CallTraceTest.moc"
