#include "check/MenuCheck.h"
#include "check/DeviceCheck.h"
#include "check/FileFault.h"
#include "locale/CTranslationHandler.h"
#include "preview/SimulatedDevice.h"
#include "terminal/PtySession.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Rows.h"
#include "tests/support/RunProgram.h"

static const char translations[] = R"({"a": "A", "b": "B", "r": "R", "smile": "a☺", "k": "K",
    "compartment": "C", "btnParameterTruckSetup": "T",
    "truck_setup_compartments": "N",
    "wide": "0123456789012345678901234567890123456789012345678901"})";

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
        readDevice(menu, calls, DeviceExtent::Everything);
        return problems() + deviceProblems(menu, calls);
    }

    // Severity and name of each.
    static QString namesOf(const QStringList &problems)
    {
        QStringList names;
        for (const QString &problem : problems) {
            names += problem.section(QLatin1Char(':'), 0, 0) + QLatin1Char(' ')
                + problem.section(QLatin1Char('['), -1).chopped(1);
        }
        return names.join(QLatin1String(", "));
    }

    QString root() const { return QStringLiteral("--web-root=") + device.paths().webRoot; }
    QString tool() const { return QStringLiteral("--tool=") + device.paths().backendTool; }
    const QString tree = QStringLiteral("--tree");
    const QString demo = QStringLiteral("--web-root=" SOURCES "/demo/web");

    static QByteArray run(const QStringList &arguments)
    {
        const ProgramResult result = runProgram(QStringLiteral(CHECKER), arguments);
        return QByteArray::number(result.exitStatus) + ' ' + result.output;
    }

    static bool start(PtySession &session, const QStringList &arguments, int columns)
    {
        session.setStandardError(QStringLiteral("/dev/tty"));
        return session.start(QStringLiteral(CHECKER), arguments, 24, columns);
    }

private slots:
    void initTestCase() { CTranslationHandler::setInstanceRoot(device.paths().webRoot); }
    void init() { device.setTranslations(translations); }

    void findsFaults_data()
    {
        const Rows<QString, QString, QString, QString> row(
            "problems", "says", "screens", "answers");
        QFile file(QStringLiteral(SOURCES "/tests/check/faults.md"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        helpers = text.section(QStringLiteral("```"), 1, 1).mid(2); // without the fence's "js"
        const QRegularExpression fault(QStringLiteral("^\\| (?!fault|---)"));
        for (const QString &line : text.split(QLatin1Char('\n')).filter(fault)) {
            const QStringList cells = line.split(QStringLiteral(" |"));
            const auto cell = [&cells](int i) {
                return cells.value(i).trimmed().remove(QLatin1Char('`')).toUtf8();
            };
            row(cells[0].mid(2).toUtf8(), cell(1), cell(2), cell(3), cell(4));
        }
    }
    void findsFaults()
    {
        QFETCH(QString, says);
        QFETCH(QString, screens);
        QFETCH(QString, answers);
        QScriptEngine engine;
        QVariantMap texts = engine.evaluate(helpers + QStringLiteral("; texts(%1)").arg(answers))
                                .toVariant()
                                .toMap();
        QByteArray commands = "case \"$*\" in\n";
        for (auto text = texts.cbegin(); text != texts.cend(); ++text)
            commands += '\'' + text.key().toUtf8() + "') cat <<'END'\n"
                + text.value().toString().toUtf8() + "\nEND\n;;\n";
        device.setTool(commands + "esac");
        device.setScreens(screens.toUtf8(), helpers.toUtf8());
        const QStringList lines = answers.isEmpty() ? problems() : problemsOnDevice();
        const QString report = lines.join(QLatin1Char('\n'));
        QTEST(namesOf(lines), "problems");
        QVERIFY2(report.contains(says), qPrintable(report));
        // Each question is asked once, and nothing is written.
        QStringList calls = device.takeCalls();
        QCOMPARE(calls.removeDuplicates(), 0);
        QCOMPARE(calls.filter(QRegularExpression(QStringLiteral("enable_if|\\["))), QStringList());
        QCOMPARE(calls.isEmpty(), answers.isEmpty());
    }

    void survivesTools_data()
    {
        const Rows<QByteArray, int, QString> row("commands", "patienceMs", "problems");
        row("crash", "kill -SEGV $$", BackendTool::patienceMs,
            "warning no-tool-version, error no-array, error no-array");
        row("hang", "echo '[1]'; exec sleep 60", 300,
            "error hanging-call, error hanging-call, error seal-status, error hanging-call");
        row("missing", "", 0, "error no-tool, error no-tool, error no-tool");
        row("slow", "[ $1 = r ] && sleep 1.1; echo '[\"i18n_wm_true\"]'", BackendTool::patienceMs,
            "warning slow-call, warning untranslated");
    }
    void survivesTools()
    {
        QFETCH(QByteArray, commands);
        QFETCH(int, patienceMs);
        device.setTool(commands);
        if (commands.isEmpty())
            QFile::remove(device.paths().backendTool);
        device.setScreens(oneField);
        QTEST(namesOf(problemsOnDevice(patienceMs)), "problems");
    }

    void findsFaultsOfFiles_data()
    {
        const Rows<QByteArray, QByteArray, QString> row("script", "table", "report");
        const QByteArray good = "Settings = {settings: [{css: 'r'}], setupStructureVersion: 1}";
        row("good", good, "{}", "");
        row("no version", "Settings = {settings: [{css: 'r'}]}", "{}",
            "has no \"setupStructureVersion\"");
        row("no version, allowed", "Settings = {settings: [{css: 'r'}], checkIgnore: 'no-version'}",
            "{}", "");
        row("bracket missing", "Settings = {\nsettings: [", "{}",
            "line 2, column 11: Syntax error");
        row("unknown name", good + ";\nnobody.calls()", "{}", "line 2: ReferenceError");
        row("late throw", good + "; throw 'late'", "{}", "line 1: late");
        row("no screens", "Settings = {}", "{}", "defines no screens");
        row("stray comma", good, "{\"a\": \"A\",\n \"\xc3\xa4\": \"B\",}",
            ": line 2, column 11: Missing a name");
        row("byte order mark", good, "\xef\xbb\xbf{}", "byte order mark");
        row("array", good, "[]", "is no JSON object");
        row("too deep", good, QByteArray(600, '['),
            "column 513: A number is too large, or the nesting");
        row("zero byte", good, QByteArray("{\0}", 3), "line 1, column 2: ");
    }
    void findsFaultsOfFiles()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, table);
        QFETCH(QString, report);
        device.setScript(script);
        QStringList lines = problems();
        device.setTranslations(table);
        lines += fileFault(device.paths());
        lines.removeAll(QString());
        QCOMPARE(lines.size(), report.isEmpty() ? 0 : 1);
        QVERIFY2(lines.value(0).contains(report), qPrintable(lines.value(0)));
    }

    void runsAsProgram()
    {
        QCOMPARE(run({ demo }), QByteArray("0 "));
        QVERIFY(run({ QStringLiteral("--version") }).startsWith("0 dravikon-menu-check "));
        QVERIFY(run({ demo, tree }).contains("\n             *  Prewarning in percent\n"));
        QCOMPARE(run({ demo, QStringLiteral("--bad") }) + run({ demo, QStringLiteral("bad") })
                + run({ demo, QStringLiteral("--tool=x") }),
            QByteArray("2 2 2 "));

        device.setScreens(QByteArray(oneField).replace("{i18n: 'a'}", "{i18n: 'smile'}"));
        QCOMPARE(run({ root() }).left(19) + run({ root(), tree }),
            QByteArray("1 warning: a: A > a0 ->  A\n +   -  a?\n"));
        QVERIFY(QFile::remove(device.paths().settingsScript));
        QCOMPARE(run({ root() }), QByteArray("2 "));
    }

    void recordsDevice()
    {
        const QStringList record { root(), tree, QStringLiteral("--device"), tool() };
        device.setScreens(oneField);
        device.setTool("echo '[\"i18n_k\"]'");
        QCOMPARE(run(record), "0 ->  A\n +   -  A" + QByteArray(45, ' ') + "K\n");
        device.setTool("[ $1 = r ] || echo '[1]'");
        QCOMPARE(run(record), QByteArray("1 ->  A\n +   -  A\n"));
    }

    void findsNothingOnDemo()
    {
        const QTemporaryDir state;
        QCOMPARE(makeSimulatedDevice(state.path(), QStringLiteral(DEMO),
                     DevicePaths { QStringLiteral(SOURCES "/demo/web") },
                     QStringLiteral(SOURCES "/demo/device.json"), {}),
            QString());
        PtySession session;
        const QString tool = QStringLiteral("--tool=") + simulatedTool(state.path());
        QVERIFY(start(session, { demo, QStringLiteral("--device"), tool }, 80));
        QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Exited, 0 }));
        // The progress is gone; what is left are the slowest five calls.
        QVERIFY(session.terminal().row(0).contains(QStringLiteral(" calls in ")));
        QVERIFY(session.terminal().row(5).contains(QStringLiteral(" s  ")));
        QCOMPARE(session.terminal().row(6), QString());
    }

    void endsAtOnce()
    {
        device.setScreens(oneField);
        device.setTool("echo $$ > \"${0%/*}/pid\"; exec sleep 60");
        QFile pid(device.paths().webRoot + QStringLiteral("/pid"));
        PtySession session;
        QVERIFY(start(session, { root(), QStringLiteral("--device"), tool() }, 30));
        QVERIFY(session.waitForText(QStringLiteral("1 of 3: get_menu_electronic_s")));
        QCOMPARE(session.terminal().row(1), QString());
        QVERIFY(
            session.waitFor([&pid] { return pid.size() > 1; }) && pid.open(QIODevice::ReadOnly));
        QVERIFY(session.send("\x03"));
        QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Killed, SIGINT }));
        const QString program =
            QStringLiteral("/proc/%1/exe").arg(QString::fromLatin1(pid.readAll().trimmed()));
        QVERIFY(session.waitFor([&program] { return !QFileInfo::exists(program); }));
    }
};

QTEST_GUILESS_MAIN(MenuCheckTest)
#include "MenuCheckTest.moc"
