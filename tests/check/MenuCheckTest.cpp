#include "check/MenuCheck.h"
#include "check/DeviceCheck.h"
#include "check/FindingNames.h"
#include "check/OwnProcess.h"
#include "check/ToolFault.h"
#include "locale/CTranslationHandler.h"
#include "preview/SimulatedDevice.h"
#include "terminal/PtySession.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Rows.h"

#include <QProcess>

#include <csignal>

#include <unistd.h>

static const char translations[] = R"({"start": "Start", "page": "Page", "other": "Other",
    "third": "Third", "field": "Field", "off": "Off", "on": "On", "tanks": "Tanks",
    "compartment": "Compartment", "smile": "a☺", "btnParameterTruckSetup": "Setup",
    "truck_setup_compartments": "Compartments"})";

static const char oneField[] = "[{css: 'start', screens: [{css: 'page'}]},"
                               "{css: 'page', 'ajax-read': 'read', screens: [{i18n: 'field'}]}]";

class MenuCheckTest : public QObject {
    Q_OBJECT

    FakeDevice device;
    QString helpers; ///< what the definitions of the table are written with

    QStringList problems()
    {
        LoadedMenu menu(device.paths());
        return menuProblems(menu);
    }

    QStringList problemsOnDevice(
        int patienceMs = BackendTool::patienceMs, int slowMs = BackendTool::patienceMs)
    {
        ToolCalls calls(device.paths().backendTool, {}, patienceMs, slowMs);
        LoadedMenu menu(device.paths(),
            [&calls](const QStringList &arguments) { return calls.run(arguments); });
        readDevice(menu, calls, DeviceExtent::Everything);
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
    const QString layout = QStringLiteral("--layout");
    const QString writeBack = QStringLiteral("--write-back");
    const QString ask = QStringLiteral("--device");
    const QString demo = QStringLiteral("--web-root=" SOURCES "/demo/web");

    struct Run {
        int status; ///< -1 when a signal ended the checker
        QString output;
        QString messages;
    };

    // The output can be read unless it goes to the file `output`.
    static Run run(const QStringList &arguments, const QString &output = {})
    {
        QProcess checker;
        checker.setStandardOutputFile(output);
        // A sanitizer would report a crash of the engine by itself.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("handle_segv=0"));
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        checker.setProcessEnvironment(environment);
        checker.start(QStringLiteral(CHECKER), arguments);
        checker.waitForFinished(int(PtySession::scaled(30000)));
        const bool hasEnded = checker.exitStatus() == QProcess::NormalExit;
        return { hasEnded ? checker.exitCode() : -1,
            QString::fromUtf8(checker.readAllStandardOutput()),
            QString::fromUtf8(checker.readAllStandardError()) };
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
        QVERIFY(calls
                    .filter(QRegularExpression(
                        QStringLiteral("level|enable_if|\\[|^write$|^write.[0-9]|^set")))
                    .isEmpty());
        QCOMPARE(calls.isEmpty(), answers.isEmpty());
    }

    void survivesTools_data()
    {
        const Rows<QByteArray, int, QString, QString> row(
            "commands", "patienceMs", "problems", "says");
        const auto onRead = [](const QByteArray &commands) {
            return "[ $1 != read ] && echo '[\"i18n_wm_true\"]' || { " + commands + "; }";
        };
        row("good", onRead("echo '[1]'"), 9000, "", "");
        row("crash", "kill -9 $$", 9000, "warning no-tool-version, error no-array, error no-array",
            "printed nothing; it failed, or does not know these words; signal 9 ended it");
        row("crash after the answer", onRead("echo '[1]'; kill -9 $$"), 9000, "warning tool-end",
            "<read> answered, but signal 9 ended it; end with 0");
        row("failure", onRead("echo '\n  no such menu\nhelp: -h' >&2; exit 3"), 9000,
            "error no-array",
            "its exit status was 3, it wrote to standard error: \"no such menu\"");
        row("failure after the answer", onRead("echo '[1]'; exit 3"), 9000, "warning tool-end",
            "<read> answered, but its exit status was 3; end with 0");
        row("warning of a tool that succeeds", onRead("echo '[1]'; echo slow >&2"), 9000, "", "");
        row("failure after the version", onRead("echo '[1]'") + "; [ $1 != --version ]", 9000,
            "warning tool-end", "<--version> answered, but its exit status was 1");
        row("escape sequence", onRead("printf '\\033[1m'"), 9000, "error no-array",
            "the answer begins with \" [1m\"");
        row("long text", onRead("printf %0100d 0"), 9000, "error no-array",
            "begins with \"000000000000000000000000000000000000000000000000000000000000...\"");
        row("without end", onRead("yes"), 9000, "error no-array", "more than 16 MiB");
        row("Latin-1", onRead("printf '[\"\\344\\344\"]'"), 9000, "warning not-utf8",
            "the answer to <read> is not UTF-8 (line 1, byte 3)");
        row("hang", "sleep 60", 100, "error hanging-call, error hanging-call, error hanging-call",
            "within 0.1 s");
        row("not executable any more", "chmod -x $0", 9000, "error no-tool",
            "cannot be started: Permission denied");
    }
    void survivesTools()
    {
        QFETCH(QByteArray, commands);
        QFETCH(int, patienceMs);
        QFETCH(QString, says);
        device.setTool(commands);
        device.setScreens(oneField);
        const QStringList lines = problemsOnDevice(patienceMs);
        QTEST(namesOf(lines), "problems");
        QVERIFY2(lines.join(QLatin1Char('\n')).contains(says),
            qPrintable(lines.join(QLatin1Char('\n'))));
    }

    void reportsSlowCalls()
    {
        device.setTool("[ $1 = read ] && echo '[1]' || echo '[\"i18n_wm_true\"]'");
        device.setScreens(oneField);
        constexpr int any = -1;
        QCOMPARE(namesOf(problemsOnDevice(BackendTool::patienceMs, any)),
            QStringLiteral("warning slow-call, warning slow-call, warning slow-call"));
    }

    void findsToolsThatCannotBeStarted_data()
    {
        const Rows<QByteArray, QString, QString> row("content", "mode", "says");
        row("script", "#!/bin/sh\n", "700", "");
        row("script with a blank and an option", "#! /bin/sh -e\n", "700", "");
        row("no file", "", "", "there is no such file");
        row("empty file", "", "700", "neither a program nor a script");
        row("not executable", "#!/bin/sh\n", "600", "allow it with chmod +x");
        row("no interpreter", "echo '[1]'\n", "700", "neither a program nor a script");
        row("carriage return", "#!/bin/sh\r\necho\r\n", "700", "carriage return");
        row("missing interpreter", "#!/no/shell -e\n", "700", "interpreter \"/no/shell\"");
        row("folder as interpreter", "#!/\n", "700", "interpreter \"/\"");
        row("nothing as interpreter", "#!\n", "700", "interpreter \"\"");
    }
    void findsToolsThatCannotBeStarted()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, mode);
        QFETCH(QString, says);
        const QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("tool"));
        QFile file(path);
        if (!mode.isEmpty()) {
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
            file.close();
            file.setPermissions(QFile::Permissions(mode.toInt(nullptr, 16)));
        }
        const QString fault = toolFault(path);
        QVERIFY2(says.isEmpty() ? fault.isEmpty() : fault.contains(says), qPrintable(fault));
    }

    void reportsAToolThatCannotBeStartedOnce()
    {
        QCOMPARE(toolFault(QStringLiteral(CHECKER)), QString());
        device.setScreens(oneField);
        const Run made = run({ root(), ask, QStringLiteral("--tool=/") });
        QCOMPARE(made.status, 1);
        QCOMPARE(made.output,
            QStringLiteral("error: /: the tool cannot be started: it is no file; "
                           "correct its path [no-tool]\n"));
        QCOMPARE(made.messages, QString());
    }

    void documentsEveryFinding()
    {
        QFile manual(QStringLiteral(SOURCES "/packaging/dravikon-menu-check.1"));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(manual.readAll());
        QSet<QString> documented;
        const QRegularExpression findings(QStringLiteral("\\n\\.It Li ([a-z0-9 ,-]+)"));
        for (auto list = findings.globalMatch(text); list.hasNext();) {
            const QStringList names = list.next().captured(1).split(QStringLiteral(" , "));
            documented += QSet<QString>(names.begin(), names.end());
        }
        const QStringList &known = findingNames();
        QCOMPARE(documented, QSet<QString>(known.begin(), known.end()));
        // Each has a row in the table, here or in the test of --write-back.
        QString tested;
        for (const char *place : { "faults.md", "MenuCheckTest.cpp", "WriteBackTest.cpp" }) {
            QFile rows(QStringLiteral(SOURCES "/tests/check/") + QLatin1String(place));
            QVERIFY(rows.open(QIODevice::ReadOnly));
            tested += QString::fromUtf8(rows.readAll());
        }
        for (const QString &name : known) {
            const QRegularExpression use(QStringLiteral("(error|warning) %1\\b").arg(name));
            QVERIFY2(tested.contains(use), qPrintable(name));
        }
    }

    void findsFaultsOfFiles_data()
    {
        const Rows<QByteArray, QByteArray, QString, QString> row(
            "script", "table", "problems", "says");
        const QByteArray good = "Settings = {settings: [{css: 'r'}], setupStructureVersion: 1}";
        const QByteArray text = "// \xc3\xa4\n" + good;
        row("good", text, "{}", "", "");
        row("no version", "Settings = {settings: [{css: 'r'}]}", "{}", "warning no-version",
            "setupStructureVersion");
        row("version allowed", "Settings = {settings: [{}], checkIgnore: 'no-version'}", "{}", "",
            "");
        row("unknown name of a finding", good + ";Settings.checkIgnore = 'version'", "{}",
            "warning unknown-finding", "settings.js: \"checkIgnore\" names \"version\"");
        row("bracket", "Settings = {\nsettings: [", "{}", "error script",
            "line 2, column 11: Syntax error; correct it, the console shows no menu");
        row("unknown name", good + ";\nnobody.calls()", "{}", "error script",
            "line 2: ReferenceError: Can't find variable: nobody; correct it, the console shows "
            "no");
        row("error in the last line", good + ";\nthrow new Error('x')", "{}", "error script",
            "line 2: Error: x; correct it, the console shows no menu");
        row("text thrown in the last line", good + ";\nthrow 'x'", "{}", "error script",
            "line 2: x is thrown; correct it, the console ignores what follows");
        row("error as the last value", good + ";\nnew Error('x')", "{}", "error script",
            "settings.js: the script ends with the value Error: x; correct it");
        row("getter", "Settings = {settings: [{get css() {}}], setupStructureVersion: 1}", "{}", "",
            "");
        row("no screens", "Settings = {}", "{}", "error script", "defines no screens");
        row("Latin-1 in the script", "\n\"\xe4\";" + good, "{}", "warning not-utf8",
            "settings.js: the script is not UTF-8 (line 2, byte 3)");
        row("byte order mark in the script", "\xef\xbb\xbf" + good, "{}", "", "");
        row("Latin-1 in the table", good, "{\"a\": \"\xe4\", \"b\": \"\xf6\"}", "warning not-utf8",
            "translation.json: the table is not UTF-8 (line 1, byte 8)");
        row("comma", good, "{\"a\": 1,\n\"\xc3\xa4\": 2,}", "error translation-table",
            "translation.json: line 2, column 8: Missing a name");
        row("too deep", good, QByteArray(600, '['), "error translation-table",
            "column 513: A number is too large, or");
        row("byte order mark", good, "\xef\xbb\xbf{}", "error translation-table",
            "byte order mark");
        row("array", good, "[]", "error translation-table", "is no JSON object");
        row("no table, no word of each text",
            "Settings = {settings: [{css: 'r', screens: ["
            "{i18n: 'none', inputType: 'button'}]}], setupStructureVersion: 1}",
            "", "error translation-table", "line 1, column 1");
    }
    void findsFaultsOfFiles()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, table);
        QFETCH(QString, says);
        device.setScript(script);
        device.setTranslations(table);
        const QStringList lines = problems();
        QTEST(namesOf(lines), "problems");
        QVERIFY2(lines.join(QLatin1Char('\n')).contains(says),
            qPrintable(lines.join(QLatin1Char('\n'))));
    }

    void understandsItsCommandLine_data()
    {
        const Rows<QStringList, int, QString, QString> row(
            "arguments", "status", "output", "messages");
        const auto option = [](const char *text) { return QStringList { QLatin1String(text) }; };
        row("no problem", { demo }, 0, "", "");
        row("version", option("--version"), 0, "dravikon-menu-check ", "");
        row("help", option("--help"), 0, "Usage: ", "");
        row("the demo's menu", { demo, tree }, 0, "->  Truck status\n", "");
        row("layout", { demo, layout }, 0, "NUMBER is ", "");
        row("write-back without tool", { demo, writeBack }, 2, "",
            "dravikon-menu-check: --write-back writes, so name the tool with --tool\n");
        row("write-back of no tool", { demo, writeBack, QStringLiteral("--tool=/nowhere") }, 2, "",
            "dravikon-menu-check: /nowhere cannot be started: ");
        row("two reports", { demo, layout, tree }, 2, "",
            "dravikon-menu-check: --layout and --write-back go with no other report\n");
        row("unknown option", option("--bad"), 2, "", "dravikon-menu-check: Unknown option");
        row("no option", option("bad"), 2, "", "dravikon-menu-check: unexpected bad\n");
        row("tool alone", option("--tool=x"), 2, "", "dravikon-menu-check: --tool is for --device");
        row("no definition", option("--web-root=/nowhere"), 2, "",
            "dravikon-menu-check: cannot load /nowhere/scripts/settings.js: No such file");
    }
    void understandsItsCommandLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, output);
        QFETCH(QString, messages);
        const Run made = run(arguments);
        QTEST(made.status, "status");
        QCOMPARE(made.output.left(output.size()), output);
        QCOMPARE(made.output.isEmpty(), output.isEmpty());
        QCOMPARE(made.messages.left(messages.size()), messages);
        QCOMPARE(made.messages.isEmpty(), messages.isEmpty());
    }

    void printsForeignTextWithoutControls()
    {
        device.setTranslations("{\"field\": \"x\\u001b[2J\\u009b\"}");
        device.setScreens(
            "[{css: 'start', screens: [{css: 'page'}, {css: spd, type: 'status'}]},"
            " {css: 'page', 'ajax-read': '\x1b[3m', get screens() { print('\x1b[7m');"
            " return [{i18n: 'field', inputType: 'selectlabel', values: ['\x1b[4m'] }];"
            " }},"
            " {css: spd, type: 'status', remote: 1}]",
            "var spd = 'btnServiceDiagnoseSpdInterfaces\x1b[5m';");
        device.setTool("printf '\\033[1m'; printf '\\033[6m' >&2");
        for (const QStringList &mode :
            { QStringList(), { tree }, { layout }, { ask, tool() }, { ask, tree, tool() } }) {
            const Run made = run(QStringList(root()) + mode);
            const QString printed = made.output + made.messages;
            QVERIFY2(printed.contains(QStringLiteral("x [2J ")), qPrintable(printed));
            QVERIFY2(!printed.contains(QRegularExpression(QStringLiteral("[\\x{1b}\\x{9b}]"))),
                qPrintable(printed));
            const Run lost = run(QStringList(root()) + mode, QStringLiteral("/dev/full"));
            QCOMPARE(lost.status, 2);
            QVERIFY(lost.messages.endsWith(
                QLatin1String("dravikon-menu-check: the output is not complete: No space left on "
                              "device\n")));
        }
    }

    void printsTextsBeyondAscii()
    {
        device.setTranslations("{\"field\": \"\xc3\x96l\"}");
        device.setScreens("[{css: 'start', screens: [{css: 'page', i18n: '\xc3\x84'}]},"
                          " {css: 'page', 'ajax-read': 'read', screens: [{i18n: 'field'}]}]");
        QCOMPARE(run({ root(), tree }).output, QString::fromUtf8("->  Ä\n +   -  Öl\n"));
    }

    void limitsTheTimeOfScripts()
    {
        // How many seconds the work has at its start.
        QCOMPARE(doInOwnProcess([] { return int(alarm(0)); }).status, 30);
        const auto unlimited = [] {
            takeTime();
            return int(alarm(0));
        };
        QCOMPARE(doInOwnProcess(unlimited).status, 0);
        for (const int number : { SIGINT, SIGTERM, SIGPIPE, SIGKILL }) {
            const WorkEnd end = doInOwnProcess([number] {
                std::signal(number, SIG_DFL); // QtTest has handlers
                return std::raise(number);
            });
            QVERIFY(end.signal == number && !end.hasCrashed());
        }
        const WorkEnd end = doInOwnProcess([] { return std::raise(SIGALRM); });
        QVERIFY(end.hasCrashed());
        QVERIFY(crashText(QStringLiteral("settings.js"), end)
                    .startsWith(QLatin1String("the script settings.js did not end within 30 s")));
    }

    void reportsCrashesOfTheEngine_data()
    {
        const Rows<QByteArray> row("script");
        const QByteArray crash = "new RegExp(Array(1e5).join('(') + Array(1e5).join(')'))";
        row("script", crash);
        row("getter", "Settings = { settings: [{ get screens() { return " + crash + "; } }] }");
        row("what only the checker reads",
            "Settings = { settings: [{ get checkIgnore() { return " + crash + "; } }] }");
    }
    void reportsCrashesOfTheEngine()
    {
        QFETCH(QByteArray, script);
        device.setScript(script);
        const Run made = run({ root() });
        if (made.status == 1 && made.output.contains(QLatin1String("too deeply")))
            return QTest::qSkip("this processor's engine does not crash", __FILE__, __LINE__);
        QCOMPARE(made.status, 3);
        QCOMPARE(made.output, QString());
        QCOMPARE(made.messages,
            QStringLiteral("dravikon-menu-check: the script engine crashes (signal 11) on %1, and "
                           "the console with it; avoid endless recursion and deep nesting in the "
                           "script\n")
                .arg(device.paths().settingsScript));
    }

    void endsOnLargeDefinitions_data()
    {
        const Rows<QByteArray> row("screens");
        row("values",
            "[{css: 'r', screens: [{css: 'a'}]}, {css: 'a', screens: [{inputType: "
            "'selectlabel', values: {length: 1e5}, dbValues: {length: 1e5}}]}]");
        row("unreached screens", "many");
        row("fields without label", "[{screens: many.map(function() { return {}; })}]");
        row("shared entries", "[{screens: many.map(function() { return {screens: many}; })}]");
    }
    void endsOnLargeDefinitions()
    {
        QFETCH(QByteArray, screens);
        device.setScreens(screens,
            "for (var many = []; many.length < 20000;)"
            " many.push({css: 's' + many.length});");
        QCOMPARE(run({ root() }).status, 1); // not that of a script without end
    }

    void recordsDevice()
    {
        device.setScreens(oneField);
        // A version is no JSON.
        device.setTool("[ $1 = --version ] && echo 1.0 || echo '[\"i18n_on\"]'");
        const QStringList record { root(), tree, ask, tool() };
        const Run complete = run(record);
        QCOMPARE(complete.status, 0);
        QCOMPARE(
            complete.output, QStringLiteral("->  Page\n +   -  Field%1On\n").arg(QString(), 41));
        QCOMPARE(complete.messages, QString());

        device.setTool("[ $1 = read ] || echo '[1]'");
        const Run incomplete = run(record);
        QCOMPARE(incomplete.status, 1);
        QCOMPARE(incomplete.output, QStringLiteral("->  Page\n +   -  Field\n"));
        QVERIFY(incomplete.messages.startsWith(QLatin1String("<read> printed nothing")));
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

    void endsWithItsTool_data()
    {
        const Rows<QByteArray, int> row("key", "number");
        row("Ctrl-C", "\x03", SIGINT);
        row("Ctrl-\\", "\x1c", SIGQUIT);
        row("hang-up", "", SIGHUP);
        row("SIGTERM", "", SIGTERM);
        row("SIGKILL", "", SIGKILL);
    }
    void endsWithItsTool()
    {
        QFETCH(QByteArray, key);
        QFETCH(int, number);
        device.setScreens(oneField);
        device.setTool("echo $$ >> \"${0%/*}/calls\"; exec sleep 60");
        PtySession session;
        session.setStandardError(QStringLiteral("/dev/tty"));
        QVERIFY(session.start(QStringLiteral(CHECKER), { root(), ask, tool() }, 24, 30));
        QVERIFY(session.waitForText(QStringLiteral("1: get_menu_electronic_seal_s")));
        QCOMPARE(session.terminal().row(1), QString()); // cut to the terminal's width
        QStringList calls { QString() };
        QVERIFY(session.waitFor([&] { return (calls += device.takeCalls()).last().toInt() > 0; }));
        if (!key.isEmpty())
            QVERIFY(session.send(key));
        else if (number == SIGHUP)
            session.hangUp();
        else
            session.signal(number);
        QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Killed, number }));
        const QString program = QStringLiteral("/proc/%1/exe").arg(calls.last());
        QVERIFY(session.waitFor([&] { return !QFileInfo::exists(program); }));
    }
};

QTEST_GUILESS_MAIN(MenuCheckTest)
#include "MenuCheckTest.moc"
