// Checks randomly damaged copies of the demo's definition, table and tool. DRAVIKON_TEST_DAMAGES
// and DRAVIKON_TEST_SEED in the environment ask for another number of copies and for other damages.
#include "check/DeviceCheck.h"
#include "preview/SimulatedDevice.h"
#include "tests/support/FakeDevice.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QtTest>

namespace {

const QByteArrayList hostileTexts = { "null", "[]", "{}", "\"\"", "-1", "1e999", "0.5", "undefined",
    "true", "9007199254740993", "\"", "'", "{", "]", ",", ":", "//", "\n", "\r", "\x1b[2J", "\xff",
    "\xc3\xa4", "\xc2\x9b", "\xe2\x80\xa8", "\\u001b", "%1", "screens", "css: 5", "length" };

QByteArray fileContent(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

int setting(const char *name, int usual)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : usual;
}

} // namespace

class DamagedFiles : public QObject {
    Q_OBJECT

    FakeDevice device;
    QByteArray script;
    QByteArray table;
    QMap<QString, QByteArray> answers; ///< by the words of the call
    QRandomGenerator random;

    int below(int limit) { return limit > 0 ? random.bounded(limit) : 0; }

    QByteArray damaged(QByteArray bytes)
    {
        for (int damages = 1 + below(4); damages > 0; --damages) {
            const int at = below(bytes.size());
            const int length = 1 + below(40);
            switch (below(4)) {
            case 0:
                bytes.replace(at, 1, QByteArray(1, char(below(256))));
                break;
            case 1:
                bytes.remove(at, length);
                break;
            case 2:
                bytes.insert(at, bytes.mid(below(bytes.size()), length));
                break;
            default:
                bytes.insert(at, hostileTexts.at(below(hostileTexts.size())));
                break;
            }
        }
        return bytes;
    }

    void writeAnswers()
    {
        const QDir directory(device.paths().webRoot + QStringLiteral("/answers"));
        directory.mkpath(QStringLiteral("."));
        for (auto answer = answers.cbegin(); answer != answers.cend(); ++answer) {
            QFile file(directory.filePath(answer.key()));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(below(8) == 0 ? damaged(answer.value()) : answer.value());
        }
        const QByteArrayList ends = { "", "", "", "exit 3", "kill -9 $$", "printf '\\033[1m' >&2" };
        device.setTool("IFS= read -r answer <\"${0%/*}/answers/$*\"\nprintf '%s\\n' \"$answer\"\n"
            + ends.at(below(ends.size())));
        if (below(8) == 0) {
            QFile tool(device.paths().backendTool);
            QVERIFY(tool.open(QIODevice::ReadWrite));
            tool.write(damaged("#!/bin/sh\n").left(10));
        }
    }

private slots:
    void initTestCase()
    {
        const QString web = QStringLiteral(SOURCES "/demo/web");
        script = fileContent(web + QStringLiteral("/scripts/settings.js"));
        table = fileContent(web + QStringLiteral("/locales/en/translation.json"));
        const QTemporaryDir state;
        const DevicePaths demo { web };
        QCOMPARE(makeSimulatedDevice(state.path(), QStringLiteral(DEMO), demo,
                     QStringLiteral(SOURCES "/demo/device.json"), {}),
            QString());
        ToolCalls calls(simulatedTool(state.path()));
        LoadedMenu menu(
            demo, [&calls](const QStringList &arguments) { return calls.run(arguments); });
        readDevice(menu, calls, DeviceExtent::Everything);
        for (const auto &[arguments, call] : calls.all())
            answers[arguments.join(QLatin1Char(' '))] = call.output;
        QVERIFY(answers.size() > 50);
    }

    void areReported_data()
    {
        QTest::addColumn<uint>("seed");
        const uint first = uint(setting("DRAVIKON_TEST_SEED", 1));
        for (uint i = 0, count = uint(setting("DRAVIKON_TEST_DAMAGES", 20)); i < count; ++i)
            QTest::addRow("seed %u", first + i) << first + i;
    }

    void areReported()
    {
        QFETCH(uint, seed);
        random.seed(seed);
        device.setScript(below(3) == 0 ? script : damaged(script));
        device.setTranslations(below(3) == 0 ? table : damaged(table));
        QStringList arguments { QStringLiteral("--web-root=") + device.paths().webRoot };
        if (below(4) == 0)
            arguments += QStringLiteral("--tree");
        if (below(4) == 0) {
            writeAnswers();
            arguments += QStringLiteral("--device");
            arguments += QStringLiteral("--tool=") + device.paths().backendTool;
        }
        QProcess checker;
        checker.start(QStringLiteral(CHECKER), arguments);
        QVERIFY(checker.waitForFinished(100000));
        QCOMPARE(checker.exitStatus(), QProcess::NormalExit);
        QVERIFY(checker.exitCode() <= 3);
        const QString printed =
            QString::fromUtf8(checker.readAllStandardOutput() + checker.readAllStandardError());
        // Control characters but the end of a line.
        const int control = printed.indexOf(
            QRegularExpression(QStringLiteral("[\\x{0}-\\x{9}\\x{b}-\\x{1f}\\x{7f}-\\x{9f}]")));
        QVERIFY2(control < 0, qPrintable(printed.mid(qMax(control - 99, 0), 200)));
    }
};

QTEST_GUILESS_MAIN(DamagedFiles)
#include "DamagedFiles.moc"
