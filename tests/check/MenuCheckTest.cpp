#include "check/MenuCheck.h"
#include "check/DeviceCheck.h"
#include "check/FileFault.h"
#include "locale/CTranslationHandler.h"
#include "preview/SimulatedDevice.h"
#include "terminal/PtySession.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Rows.h"
#include "tests/support/RunProgram.h"

static const char translations[] = R"({"a": "A", "b": "B", "r": "R", "k": "K", "smile": "a☺",
    "compartment": "C", "btnParameterTruckSetup": "T", "truck_setup_compartments": "N"})";

static const char oneField[] = "[{css: 'r', screens: [{css: 'a'}]},"
                               "{css: 'a', 'ajax-read': 'r', screens: [{i18n: 'a'}]}]";

class MenuCheckTest : public QObject {
    Q_OBJECT

    FakeDevice device;
    QString helpers; ///< what the definitions of the table are written with

    QStringList problems()
    {
        LoadedMenu menu(device.paths());
        return menuProblems(menu);
    }

    QStringList problemsOnDevice(int patienceMs = BackendTool::patienceMs)
    {
        ToolCalls calls(device.paths().backendTool, {}, patienceMs);
        LoadedMenu menu(device.paths(),
            [&calls](const QStringList &arguments) { return calls.run(arguments); });
        readDevice(menu, DeviceExtent::Everything);
        return problems() + deviceProblems(menu, calls);
    }

    // Severity and name of each.
    static QString namesOf(QStringList lines)
    {
        const QRegularExpression finding(QStringLiteral(R"(^(\w+): .*\[(.*)\]$)"));
        return lines.replaceInStrings(finding, QStringLiteral("\\1 \\2")).join(QLatin1String(", "));
    }

    QString root() const { return QStringLiteral("--web-root=") + device.paths().webRoot; }
    QString tool() const { return QStringLiteral("--tool=") + device.paths().backendTool; }
    const QString tree = QStringLiteral("--tree");
    const QString ask = QStringLiteral("--device");
    const QString demo = QStringLiteral("--web-root=" SOURCES "/demo/web");

    static QByteArray run(const QStringList &arguments)
    {
        const QStringList shell { QStringLiteral("-c"),
            QStringLiteral("set -o pipefail; " CHECKER " \"$@\" 2>&1 | cat"), QString() };
        const ProgramResult result = runProgram(QStringLiteral("/bin/bash"), shell + arguments);
        return QByteArray::number(result.end.value) + ' ' + result.output;
    }

private slots:
    void initTestCase() { CTranslationHandler::setInstanceRoot(device.paths().webRoot); }
    void init() { device.setTranslations(translations); }

    void findsFaults_data()
    {
        Rows<QString, QString, QString, QString>("problems", "says", "screens", "answers");
        QFile file(QStringLiteral(SOURCES "/tests/check/faults.md"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList parts = QString::fromUtf8(file.readAll()).split(QStringLiteral("```"));
        helpers = parts[1].mid(2); // without the fence's "js"
        const QRegularExpression fault(QStringLiteral("^\\| (?!fault|---)"));
        const QRegularExpression border(QStringLiteral("[ `]*\\|[ `]*"));
        for (const QString &line : parts[2].split(QLatin1Char('\n')).filter(fault)) {
            const QStringList cells = line.split(border);
            QTest::newRow(qPrintable(cells[1])) << cells[2] << cells[3] << cells[4] << cells[5];
        }
    }
    void findsFaults()
    {
        QFETCH(QString, says);
        QFETCH(QString, screens);
        QFETCH(QString, answers);
        QScriptEngine engine;
        const QString printed = QStringLiteral("; printed(%1)").arg(answers);
        const QVariantMap texts = engine.evaluate(helpers + printed).toVariant().toMap();
        QByteArray commands = "case \"$*\" in\n";
        for (auto text = texts.cbegin(); text != texts.cend(); ++text)
            commands += '\'' + text.key().toUtf8() + "') cat <<'END'\n" + text.value().toByteArray()
                + "\nEND\n;;\n";
        device.setTool(commands + R"(--version) echo 1.0/2;;
            *_seal_status) echo '["i18n_wm_true"]';;
            *_interfaces*) echo '[]';; esac)");
        device.setScreens(screens.toUtf8(), helpers.toUtf8());
        const QStringList lines = answers.isEmpty() ? problems() : problemsOnDevice();
        const QString report = lines.join(QLatin1Char('\n'));
        QTEST(namesOf(lines), "problems");
        QVERIFY2(report.contains(says), qPrintable(report));
        // Each question is asked once; Level has none, and nothing is written.
        QStringList calls = device.takeCalls();
        QCOMPARE(calls.removeDuplicates(), 0);
        QVERIFY(calls.filter(QRegularExpression(QStringLiteral("level|enable_if|\\["))).isEmpty());
        QCOMPARE(calls.isEmpty(), answers.isEmpty());
    }

    void survivesTools_data()
    {
        const Rows<QByteArray, int, QString> row("commands", "patienceMs", "problems");
        row("crash", "kill -9 $$", 9000, "warning no-tool-version, error no-array, error no-array");
        row("hang", "sleep 60", 100, "error hanging-call, error hanging-call, error hanging-call");
        row("not executable", "chmod -x $0", 9000, "error no-tool, error no-tool, error no-tool");
        row("slow", "[ $1 = r ] && sleep 1.1; echo '[1]'", 9000,
            "error seal-status, warning slow-call");
    }
    void survivesTools()
    {
        QFETCH(QByteArray, commands);
        QFETCH(int, patienceMs);
        device.setTool(commands);
        device.setScreens(oneField);
        QTEST(namesOf(problemsOnDevice(patienceMs)), "problems");
    }

    void findsFaultsOfFiles_data()
    {
        const Rows<QByteArray, QByteArray, QString> row("script", "table", "report");
        const QByteArray good = "Settings = {settings: [{css: 'r'}], setupStructureVersion: 1}";
        row("good", good, "{}", "");
        row("no version", "Settings = {settings: [{css: 'r'}]}", "{}", "setupStructureVersion");
        row("version allowed", "Settings = {settings: [{}], checkIgnore: 'no-version'}", "{}", "");
        row("bracket", "Settings = {\nsettings: [", "{}", "line 2, column 11: Syntax error");
        row("unknown name", good + ";\nnobody.calls()", "{}", "line 2: ReferenceError");
        row("no screens", "Settings = {}", "{}", "defines no screens");
        row("comma", good, "{\"a\": 1,\n\"\xc3\xa4\": 2,}", "line 2, column 8: Missing a name");
        row("too deep", good, QByteArray(600, '['), "column 513: A number is too large, or");
        row("byte order mark", good, "\xef\xbb\xbf{}", "byte order mark");
        row("array", good, "[]", "is no JSON object");
    }
    void findsFaultsOfFiles()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, table);
        QFETCH(QString, report);
        device.setScript(script);
        QString lines = problems().join(QLatin1Char('\n'));
        device.setTranslations(table);
        lines += fileFault(device.paths());
        QVERIFY2(report.isEmpty() ? lines.isEmpty() : lines.contains(report), qPrintable(lines));
    }

    void runsAsProgram()
    {
        QCOMPARE(run({ demo }), QByteArray("0 "));
        QVERIFY(run({ QStringLiteral("--version") }).startsWith("0 dravikon-menu-check "));
        QVERIFY(run({ QStringLiteral("--help") }).contains("\nExit status: 0 no problem"));
        QVERIFY(run({ demo, tree }).contains("\n             *  Prewarning in percent\n"));
        QVERIFY(
            run({ QStringLiteral("--bad") }).startsWith("2 dravikon-menu-check: Unknown option"));
        QVERIFY(run({ QStringLiteral("bad") }).startsWith("2 dravikon-menu-check: unexpected bad"));
        QVERIFY(run({ QStringLiteral("--tool=x") }).startsWith("2 dravikon-menu-check: --tool is"));

        device.setScreens(QByteArray(oneField).replace("{i18n: 'a'}", "{i18n: 'smile'}"));
        QCOMPARE(run({ root() }).left(19) + run({ root(), tree }),
            QByteArray("1 warning: a: A > a0 ->  A\n +   -  a?\n"));
        QVERIFY(QFile::remove(device.paths().settingsScript));
        QVERIFY(run({ root() }).startsWith("2 dravikon-menu-check: cannot load /"));
    }

    void recordsDevice()
    {
        const QStringList record { root(), tree, ask, tool() };
        device.setScreens(oneField);
        device.setTool("echo '[\"i18n_k\"]'");
        QCOMPARE(run(record), "0 ->  A\n +   -  A" + QByteArray(45, ' ') + "K\n");
        device.setTool("[ $1 = r ] || echo '[1]'");
        QVERIFY(run({ root(), ask, tool() }).startsWith("1 error: "));
        QVERIFY(run(record).startsWith("1 ->  A\n +   -  A\n<r> printed nothing"));
    }

    void findsNothingOnDemo()
    {
        const QTemporaryDir state;
        const DevicePaths files { QStringLiteral(SOURCES "/demo/web") };
        const QString data = QStringLiteral(SOURCES "/demo/device.json");
        QVERIFY(makeSimulatedDevice(state.path(), QStringLiteral(DEMO), files, data, {}).isEmpty());
        PtySession session;
        const QString tool = QStringLiteral("--tool=") + simulatedTool(state.path());
        session.setStandardError(QStringLiteral("/dev/tty"));
        QVERIFY(session.start(QStringLiteral(CHECKER), { demo, ask, tool }, 24, 80));
        QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Exited, 0 }));
        QVERIFY(session.bytesSinceMark().contains("K4: get_menu truck_status\r"));
        // The progress is gone; what is left are the slowest five calls.
        const QRegularExpression slowest(QStringLiteral(
            R"(^63 calls in \d{1,3}\.\d s, the slowest:\n( {4}\d\.\d{3} s  .+\n){5}\s*$)"));
        QVERIFY(session.terminal().screen().join(QLatin1Char('\n')).contains(slowest));
    }

    void endsAtOnce()
    {
        device.setScreens(oneField);
        device.setTool("echo $$ >> \"${0%/*}/calls\"; exec sleep 60");
        PtySession session;
        session.setStandardError(QStringLiteral("/dev/tty"));
        QVERIFY(session.start(QStringLiteral(CHECKER), { root(), ask, tool() }, 24, 30));
        QVERIFY(session.waitForText(QStringLiteral("1: get_menu_electronic_seal_s")));
        QCOMPARE(session.terminal().row(1), QString());
        QStringList calls { QString() };
        QVERIFY(session.waitFor([&] { return (calls += device.takeCalls()).last().toInt() > 0; }));
        QVERIFY(session.send("\x03"));
        QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Killed, SIGINT }));
        const QString program = QStringLiteral("/proc/%1/exe").arg(calls.last());
        QVERIFY(session.waitFor([&program] { return !QFileInfo::exists(program); }));
    }
};

QTEST_GUILESS_MAIN(MenuCheckTest)
#include "MenuCheckTest.moc"
