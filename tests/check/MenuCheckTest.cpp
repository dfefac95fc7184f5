#include "check/MenuCheck.h"
#include "check/DeviceCheck.h"
#include "check/FindingNames.h"
#include "check/OwnProcess.h"
#include "check/ToolFault.h"
#include "locale/CTranslationHandler.h"
#include "platform/SignalBlocker.h"
#include "preview/SimulatedDevice.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Files.h"
#include "tests/support/Findings.h"
#include "tests/support/Rows.h"
#include "tests/support/RunProgram.h"

#include <unistd.h>

static const char translations[] = R"({"start": "Start", "page": "Page", "other": "Other",
    "third": "Third", "field": "Field", "off": "Off", "on": "On", "tanks": "Tanks",
    "compartment": "Compartment", "smile": "a☺", "btnParameterTruckSetup": "Setup",
    "truck_setup_compartments": "Compartments"})";

static const char oneField[] = "[{css: 'start', screens: [{css: 'page'}]},"
                               "{css: 'page', 'ajax-read': 'read', screens: [{i18n: 'field'}]}]";

static const char goodScript[] = "Settings = {settings: [{css: 'r'}], setupStructureVersion: 1}";

class MenuCheckTest : public QObject {
    Q_OBJECT

    FakeDevice device;

    QStringList definitionFaults()
    {
        LoadedMenu menu(device.paths());
        return menuProblems(menu);
    }

    QStringList deviceFaults(
        int patienceMs = BackendTool::patienceMs, int slowMs = BackendTool::patienceMs)
    {
        ToolCalls calls(device.paths().backendTool, {}, patienceMs, slowMs);
        LoadedMenu menu(device.paths(),
            [&calls](const QStringList &arguments) { return calls.run(arguments); });
        readDevice(menu, calls, DeviceExtent::Everything);
        return definitionFaults() + deviceProblems(menu, calls);
    }

    const QString demo = "--web-root=" SOURCES "/demo/web ";
    const QString root = "--web-root=" + device.paths().webRoot + ' ';
    const QString ask = "--device --tool=" + device.paths().backendTool + ' ';

    // Runs the checker with options in the notation of the shell.
    static ProgramResult check(const QString &options)
    {
        return runShell("exec " CHECKER " " + options);
    }

private slots:
    void initTestCase() { CTranslationHandler::setInstanceRoot(device.paths().webRoot); }
    void init() { device.setTranslations(translations); }

    void findsFaults()
    {
        const QStringList parts = QString(sourceFile("tests/check/faults.md")).split("```");
        const QString helpers = parts[1].mid(2); // without the fence's "js"
        const Rows row = [&](const QString &problems, const QString &says, const QString &screens,
                             const QString &answers) {
            QScriptEngine engine;
            const QString printed = QString("; printed(%1)").arg(answers);
            const QVariantMap texts = engine.evaluate(helpers + printed).toVariant().toMap();
            QByteArray commands = "case \"$*\" in\n";
            for (auto text = texts.cbegin(); text != texts.cend(); ++text)
                commands += '\'' + text.key().toUtf8() + "') cat <<'END'\n"
                    + text.value().toByteArray() + "\nEND\n;;\n";
            device.setTool(commands + R"(--version) echo 1.0/2;;
                *_seal_status) echo '["i18n_wm_true"]';;
                *_interfaces*) echo '[]';; esac)");
            device.setScreens(screens.toUtf8(), helpers.toUtf8());
            const QStringList lines = answers.isEmpty() ? definitionFaults() : deviceFaults();
            compareFindings(lines, problems, says);
            // Each question is asked once; Level has none, and nothing is written.
            QStringList calls = device.takeCalls();
            QCOMPARE(calls.removeDuplicates(), 0);
            const QRegularExpression others("level|enable_if|\\[|^write$|^write.[0-9]|^set");
            QCOMPARE(calls.filter(others), QStringList());
            QCOMPARE(calls.isEmpty(), answers.isEmpty());
        };
        const QRegularExpression fault("^\\| (?!fault|---)");
        const QRegularExpression border("[ `]*\\|[ `]*");
        for (const QString &line : parts[2].split('\n').filter(fault)) {
            const QStringList cells = line.split(border);
            row(cells[1].toUtf8(), cells[2], cells[3], cells[4], cells[5]);
        }
    }

    void survivesTools()
    {
        const Rows row = [this](const QByteArray &commands, const QString &problems,
                             const QString &says) {
            device.setTool(commands);
            compareFindings(deviceFaults(), problems, says);
        };
        device.setScreens(oneField);
        const auto onRead = [](const QByteArray &commands) {
            return "[ $1 != read ] && echo '[\"i18n_wm_true\"]' || { " + commands + "; }";
        };
        row("good", onRead("echo '[1]'"), "", "");
        row("crash", "kill -9 $$", "warning no-tool-version, error no-array, error no-array",
            "printed nothing; it failed, or does not know these words; signal 9 ended it");
        row("crash after the answer", onRead("echo '[1]'; kill -9 $$"), "warning tool-end",
            "<read> answered, but signal 9 ended it; end with 0");
        row("failure", onRead("echo '\n  no such menu\nhelp: -h' >&2; exit 3"), "error no-array",
            "its exit status was 3, it wrote to standard error: \"no such menu\"");
        row("failure after the answer", onRead("echo '[1]'; exit 3"), "warning tool-end",
            "<read> answered, but its exit status was 3; end with 0");
        row("warning of a tool that succeeds", onRead("echo '[1]'; echo slow >&2"), "", "");
        row("failure after the version", onRead("echo '[1]'") + "; [ $1 != --version ]",
            "warning tool-end", "<--version> answered, but its exit status was 1");
        row("escape sequence", onRead("printf '\\033[1m'"), "error no-array",
            "the answer begins with \" [1m\"");
        row("without end", onRead("yes"), "error no-array", "more than 16 MiB");
        row("Latin-1", onRead("printf '[\"\\344\\344\"]'"), "warning not-utf8",
            "the answer to <read> is not UTF-8 (line 1, byte 3)");
        if (!EMULATED) // see startsNoOtherFiles
            row("not executable any more", "chmod -x $0", "error no-tool",
                "cannot be started: Permission denied");
    }

    void reportsSlowAndHangingCalls()
    {
        device.setScreens(oneField);
        device.setTool("[ $1 = read ] && echo '[1]' || echo '[\"i18n_wm_true\"]'");
        constexpr int any = -1;
        compareFindings(deviceFaults(BackendTool::patienceMs, any),
            "warning slow-call, warning slow-call, warning slow-call", "");
        const ToolCalls usual({}); // with the times of the manual page
        QCOMPARE(usual.slowMs, 1000);
        QCOMPARE(usual.patienceMs, 30000);
        device.setTool("exec sleep 60");
        compareFindings(deviceFaults(100),
            "error hanging-call, error hanging-call, error hanging-call", "within 0.1 s");
    }

    void findsToolsThatCannotBeStarted()
    {
        const QTemporaryDir directory;
        const QString tool = directory.filePath("tool");
        QCOMPARE(toolFault(CHECKER), QString());
        QVERIFY(toolFault(tool).contains("there is no such file"));
        const Rows row = [&](const QByteArray &content, const QString &mode, const QString &says) {
            writeFile(tool, content);
            runProgram("chmod", { mode, tool });
            const QString fault = toolFault(tool);
            QVERIFY2(says.isEmpty() ? fault.isEmpty() : fault.contains(says), qPrintable(fault));
        };
        row("script", "#!/bin/sh\n", "700", "");
        row("script with a blank and an option", "#! /bin/sh -e\n", "700", "");
        row("empty file", "", "700", "neither a program nor a script");
        row("not executable", "#!/bin/sh\n", "600", "allow it with chmod +x");
        row("no interpreter", "echo '[1]'\n", "700", "neither a program nor a script");
        row("carriage return", "#!/bin/sh\r\necho\r\n", "700", "carriage return");
        row("missing interpreter", "#!/no/shell -e\n", "700", "interpreter \"/no/shell\"");
        row("folder as interpreter", "#!/\n", "700", "interpreter \"/\"");
    }

    void documentsEveryFinding()
    {
        const QByteArray manual = sourceFile("packaging/dravikon-menu-check.1");
        QStringList documented;
        const QRegularExpression findings("\\n\\.It Li ([a-z0-9 ,-]+)");
        for (auto list = findings.globalMatch(manual); list.hasNext();)
            documented += list.next().captured(1).split(" , ");
        QStringList known = findingNames();
        documented.removeDuplicates();
        documented.sort();
        known.sort();
        QCOMPARE(documented, known);
        // Each has a row in the table, here or in the test of --write-back.
        const QString tested = sourceFile("tests/check/faults.md")
            + sourceFile("tests/check/MenuCheckTest.cpp")
            + sourceFile("tests/check/WriteBackTest.cpp");
        for (const QString &name : known) {
            const QRegularExpression use(QString("(error|warning) %1\\b").arg(name));
            QVERIFY2(tested.contains(use), qPrintable(name));
        }
    }

    void findsFaultsOfScripts()
    {
        const Rows row = [this](const QByteArray &script, const QString &problems,
                             const QString &says) {
            device.setScript(script);
            compareFindings(definitionFaults(), problems, says);
        };
        const QByteArray good = goodScript;
        row("good", "// \xc3\xa4\n" + good, "", "");
        row("no version", "Settings = {settings: [{css: 'r'}]}", "warning no-version",
            "setupStructureVersion");
        row("version allowed", "Settings = {settings: [{}], checkIgnore: 'no-version'}", "", "");
        row("getter", "Settings = {settings: [{get css() {}}], setupStructureVersion: 1}", "", "");
        row("unknown name of a finding", good + ";Settings.checkIgnore = 'version'",
            "warning unknown-finding", "settings.js: \"checkIgnore\" names \"version\"");
        row("bracket", "Settings = {\nsettings: [", "error script",
            "line 2, column 11: Syntax error; correct it, the console shows no menu");
        row("unknown name", good + ";\nnobody.calls()", "error script",
            "line 2: ReferenceError: Can't find variable: nobody; correct it, the console shows "
            "no");
        row("error in the last line", good + ";\nthrow new Error('x')", "error script",
            "line 2: Error: x; correct it, the console shows no menu");
        row("text thrown in the last line", good + ";\nthrow 'x'", "error script",
            "line 2: x is thrown; correct it, the console ignores what follows");
        row("error as the last value", good + ";\nnew Error('x')", "error script",
            "settings.js: the script ends with the value Error: x; correct it");
        row("no screens", "Settings = {}", "error script", "defines no screens");
        row("Latin-1", "\n\"\xe4\";" + good, "warning not-utf8",
            "settings.js: the script is not UTF-8 (line 2, byte 3)");
    }

    void findsFaultsOfTables()
    {
        const Rows row = [this](const QByteArray &table, const QString &problems,
                             const QString &says) {
            device.setTranslations(table);
            compareFindings(definitionFaults(), problems, says);
        };
        device.setScript(goodScript);
        row("Latin-1", "{\"a\": \"\xe4\", \"b\": \"\xf6\"}", "warning not-utf8",
            "translation.json: the table is not UTF-8 (line 1, byte 8)");
        row("comma", "{\"a\": 1,\n\"\xc3\xa4\": 2,}", "error translation-table",
            "translation.json: line 2, column 8: Missing a name");
        row("too deep", QByteArray(600, '['), "error translation-table",
            "column 513: A number is too large, or");
        row("byte order mark", "\xef\xbb\xbf{}", "error translation-table", "byte order mark");
        row("array", "[]", "error translation-table", "is no JSON object");
        device.setScreens("[{css: 'r', screens: [{i18n: 'none', inputType: 'button'}]}]");
        row("none, no word of each text", "", "error translation-table", "line 1, column 1");
    }

    void understandsItsCommandLine()
    {
        const Rows row = [](const QString &options, int status, const QString &output,
                             const QString &messages) {
            const ProgramResult made = check(options);
            QCOMPARE(made.status, status);
            QCOMPARE(made.output.left(output.size()), output);
            QCOMPARE(made.output.isEmpty(), output.isEmpty());
            QCOMPARE(made.messages.left(messages.size()), messages);
            QCOMPARE(made.messages.isEmpty(), messages.isEmpty());
        };
        row("no problem", demo, 0, "", "");
        row("version", "--version", 0, "dravikon-menu-check ", "");
        row("help", "--help", 0, "Usage: ", "");
        row("the demo's menu", demo + "--tree", 0, "->  Truck status\n", "");
        row("layout", demo + "--layout", 0, "NUMBER is ", "");
        row("write-back without tool", demo + "--write-back", 2, "",
            "dravikon-menu-check: --write-back writes, so name the tool with --tool\n");
        row("write-back of no tool", demo + "--write-back --tool=/nowhere", 2, "",
            "dravikon-menu-check: /nowhere cannot be started: ");
        row("two reports", demo + "--layout --tree", 2, "",
            "dravikon-menu-check: --layout and --write-back go with no other report\n");
        row("folder as tool", demo + "--device --tool=/", 1,
            "error: /: the tool cannot be started: it is no file; correct its path [no-tool]\n",
            "");
        row("unknown option", "--bad", 2, "", "dravikon-menu-check: Unknown option");
        row("no option", "bad", 2, "", "dravikon-menu-check: unexpected bad\n");
        row("tool alone", "--tool=x", 2, "", "dravikon-menu-check: --tool is for --device");
        row("empty path", "--web-root=", 2, "", "dravikon-menu-check: --web-root needs a value\n");
        row("no definition", "--web-root=/nowhere", 2, "",
            "dravikon-menu-check: cannot load /nowhere/scripts/settings.js: No such file");
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
        for (const QString &report :
            { QString(), QString("--tree"), QString("--layout"), ask, ask + "--tree" }) {
            const ProgramResult made = check(root + report);
            const QString printed = made.output + made.messages;
            QVERIFY2(printed.contains("x [2J "), qPrintable(printed));
            QVERIFY2(
                !printed.contains(QRegularExpression("[\\x{1b}\\x{9b}]")), qPrintable(printed));
            const ProgramResult lost = check(root + report + " > /dev/full");
            QCOMPARE(lost.status, 2);
            QVERIFY(lost.messages.endsWith("dravikon-menu-check: the output is not complete: "
                                           "No space left on device\n"));
        }
    }

    void printsTheMenu()
    {
        device.setTranslations("{\"field\": \"\xc3\x96l\"}");
        device.setScreens("[{screens: [{css: 'page', i18n: '\xc3\x84'}, {css: 'list'}]},"
                          " {css: 'page', 'ajax-read': 'read', screens: [{i18n: 'field'}]},"
                          " {css: 'list', type: 'meterBtn', remote: 1, screens: []},"
                          " {css: 'listModifyDo', i18n: 'meter'}]");
        QCOMPARE(check(root + "--tree").output,
            QString("->  Ä\n +   -  Öl\n->  list\n +   -  meter 1\n"));
        device.setScript("");
        const ProgramResult made = check(root + "--tree");
        QCOMPARE(made.status, 1);
        QVERIFY2(made.output.startsWith("error: "), qPrintable(made.output));
    }

    void limitsTheTimeOfScripts()
    {
        const SignalBlocker blocker(signalSet({ SIGTERM, SIGALRM })); // as a caller may do
        // How many seconds the work has at its start.
        QCOMPARE(doInOwnProcess([] { return int(alarm(0)); }).status, 30);
        const auto unlimited = [] {
            takeTime();
            return int(alarm(0));
        };
        QCOMPARE(doInOwnProcess(unlimited).status, 0);
        const WorkEnd killed = doInOwnProcess([] { return std::raise(SIGKILL); });
        QVERIFY(killed.signal == SIGKILL && !killed.hasCrashed());
        const WorkEnd end = doInOwnProcess([] { return std::raise(SIGALRM); });
        QVERIFY(end.hasCrashed());
        QVERIFY(crashText("settings.js", end)
                    .startsWith("the script settings.js did not end within 30 s"));
    }

    void reportsCrashesOfTheEngine()
    {
        const Rows row = [this](const QByteArray &script) {
            device.setScript(script);
            const ProgramResult made = check(root);
            if (EMULATED && made.status == 1)
                return QTest::qSkip("this processor's engine does not crash", __FILE__, __LINE__);
            QCOMPARE(made.status, 3);
            QCOMPARE(made.output, QString());
            QCOMPARE(made.messages,
                QString("dravikon-menu-check: the script engine crashes (signal 11) on %1, and "
                        "the console with it; avoid endless recursion and deep nesting in the "
                        "script\n")
                    .arg(device.paths().settingsScript));
        };
        const QByteArray crash = "new RegExp(Array(1e5).join('(') + Array(1e5).join(')'))";
        row("script", crash);
        row("what only the checker reads",
            "Settings = { settings: [{ get checkIgnore() { return " + crash + "; } }] }");
    }

    void endsOnLargeDefinitions()
    {
        const QByteArray longLists = "[{css: 'r', screens: [{css: 'a'}]}, {css: 'a', screens: ["
                                     "{inputType: 'selectlabel', values: long, dbValues: long}]}]";
        const QByteArray unreachedScreens = "many";
        const QByteArray noLabels = "[{screens: many.map(function() { return {}; })}]";
        const QByteArray sharedEntries =
            "[{screens: many.map(function() { return {screens: many}; })}]";
        for (const QByteArray &screens : { longLists, unreachedScreens, noLabels, sharedEntries }) {
            device.setScreens(screens,
                "var long = {length: 1e5};"
                "for (var many = []; many.length < 20000;) many.push({css: 's' + many.length});");
            QCOMPARE(check(root).status, 1); // not that of a script without end
        }
    }

    void recordsDevice()
    {
        device.setScreens(oneField);
        // A version is no JSON.
        device.setTool("[ $1 = --version ] && echo 1.0 || echo '[\"i18n_on\"]'");
        const QString trace = device.paths().webRoot + "/trace";
        const ProgramResult complete = check(root + ask + "--tree --trace " + trace);
        QVERIFY(readFile(trace).contains("i18n_on"));
        QCOMPARE(complete.status, 0);
        QCOMPARE(complete.output, QString("->  Page\n +   -  Field%1On\n").arg(QString(), 41));
        QCOMPARE(complete.messages, QString());
        device.setScreens("[{css: 'start', screens: [{css: 'gone'}]}]");
        QCOMPARE(check(root + ask).status, 1);

        device.setScreens(oneField);
        device.setTool("[ $1 = read ] || echo '[1]'");
        const ProgramResult incomplete = check(root + ask + "--tree");
        QCOMPARE(incomplete.status, 1);
        QCOMPARE(incomplete.output, QString("->  Page\n +   -  Field\n"));
        QVERIFY(incomplete.messages.startsWith("<read> printed nothing"));
    }

    void findsNothingOnDemo()
    {
        const QTemporaryDir state;
        const DevicePaths files { SOURCES "/demo/web" };
        const QString data = SOURCES "/demo/device.json";
        QVERIFY(makeSimulatedDevice(state.path(), DEMO, files, data, {}).isEmpty());
        PtySession session;
        session.setStandardError("/dev/tty");
        QVERIFY(session.start(CHECKER,
            { "--web-root", files.webRoot, "--device", "--tool", simulatedTool(state.path()) }, 24,
            80));
        QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Exited, 0 }));
        QVERIFY(session.bytesSinceMark().contains("K4: get_menu truck_status\r"));
        // The progress is gone; what is left are the slowest five calls.
        const QRegularExpression slowest(
            R"(^63 calls in \d{1,3}\.\d s, the slowest:\n( {4}\d\.\d{3} s  .+\n){5}\s*$)");
        QVERIFY(session.terminal().screen().join('\n').contains(slowest));
    }

    void endsWithItsTool()
    {
        device.setScreens(oneField);
        device.setTool("echo $$ >> \"${0%/*}/calls\"; exec sleep 60");
        const Rows row = [this](int number) {
            PtySession session;
            session.setStandardError("/dev/tty");
            QVERIFY(session.start(CHECKER,
                { "--web-root", device.paths().webRoot, "--device", "--tool",
                    device.paths().backendTool },
                24, 30));
            QVERIFY(session.waitForText("1: get_menu_electronic_sea"));
            QCOMPARE(session.terminal().row(1), QString()); // cut to the terminal's width
            QStringList calls { QString() };
            QVERIFY(
                session.waitFor([&] { return (calls += device.takeCalls()).last().toInt() > 0; }));
            endBy(number, session);
            QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Killed, number }));
            QVERIFY(number != SIGINT || session.terminal().row(0).isEmpty());
            const QString program = QString("/proc/%1/exe").arg(calls.last());
            QVERIFY(session.waitFor([&] { return !QFileInfo::exists(program); }));
        };
        row("Ctrl-C", SIGINT);
        row("hang-up", SIGHUP);
        row("SIGKILL", SIGKILL);
    }
};

QTEST_GUILESS_MAIN(MenuCheckTest)
#include "MenuCheckTest.moc"
