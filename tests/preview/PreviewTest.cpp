#include "check/DeviceCheck.h"
#include "check/WriteBack.h"
#include "json/JsonReader.h"
#include "preview/DeviceState.h"
#include "preview/FieldInterfaces.h"
#include "preview/MenuValues.h"
#include "preview/SimulatedDevice.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Files.h"
#include "tests/support/Rows.h"
#include "tests/support/RunProgram.h"

#include <sys/stat.h>

// Screens that read and write a group called as their css.
static const char helpers[] = R"(
function page(css, screens, type) {
    return { css: css, type: type, remote: 1, screens: screens,
             'ajax-read': 'get  ' + css, 'ajax-write': 'set ' + css };
}
function list(css, type) { return { css: css, type: type, remote: 1, screens: {} }; }
function to(css) { return { css: css, remote: 1 }; }
function field(inputType, more) {
    var made = { inputType: inputType, i18n: 'f' };
    for (var name in more) made[name] = more[name];
    return made;
}
function count(i18n) { return { i18n: i18n, inputType: 'edit', validation: 'N3', range: [0, 999] }; }
var setup = page('btnParameterTruckSetup', [field('label'), count('truck_setup_compartments')]);
var can = page('btnParameterInterfacesCanFasWm', [count('interfaces_can_fas_wm_fpi')]);
function define(start, screens) { Settings = { settings: [{ screens: start }].concat(screens) }; }
)";

static const char crash[] = "new RegExp(Array(1e5).join('(') + Array(1e5).join(')'))";

// When a preview is ended.
enum Moment { MakingTheDevice, InTheMenu, OnAStuckTerminal, Reporting };

class PreviewTest : public QObject {
    Q_OBJECT

    FakeDevice files;
    const QString program = PREVIEW;

    // Runs the preview for a moment, with options in the notation of the shell. As luit does it,
    // the program gets its name without the directory.
    ProgramResult preview(const QString &options, const QString &before = {})
    {
        return runShell(before + "exec -a dravikon-preview " PREVIEW " --idle 1 --web-root "
            + files.paths().webRoot + ' ' + options);
    }

    void define(const QByteArray &screens) { files.setScript(helpers + screens); }

    static QByteArray read(const DeviceState &state, const char *words)
    {
        return deviceJson(state.groups.at(words).values);
    }

    // Makes a device with the usual three compartments and two meters. Its values fit, and it
    // keeps what the console writes on each of the screens.
    void playDevice(int screens)
    {
        const QTemporaryDir directory;
        QCOMPARE(
            makeSimulatedDevice(directory.path(), program, files.paths(), {}, { {}, {}, true }),
            QString());
        DevicePaths paths = files.paths();
        paths.backendTool = simulatedTool(directory.path());
        ToolCalls calls(paths.backendTool);
        LoadedMenu menu(
            paths, [&calls](const QStringList &arguments) { return calls.run(arguments); });
        readDevice(menu, calls, DeviceExtent::Everything);
        QCOMPARE(deviceProblems(menu, calls), QStringList());
        CallTrace trace;
        const WriteBackReport report = writeBack(paths, trace);
        QCOMPARE(report.problems, QStringList());
        QCOMPARE(report.summary.section(' ', 0, 3), QString("%1 of %1 screens").arg(screens));
    }

private slots:
    void makesDevicesThatSuit()
    {
        const Rows row = [this](const QByteArray &script, int screens) {
            define(script);
            playDevice(screens);
        };
        row("every input kind", R"(define([to('kinds')], [page('kinds', [
                field('separator'), field('button'), field('label'), field('input'), {},
                field('selectlabel', { values: ['a'], dbValues: ['A'] }), to('below'),
                field('dropdown', { i18n: 'position', values: ['a', 'b'] }),
                field('dropdown', { i18n: 'option', values: ['a', 'b', 'c'], dbValues: [2.5, 7, 'x'] }),
                field('dropdown', { i18n: 'few options', values: ['a', 'b'], dbValues: ['x'] }),
                field('boolean', { i18n: 'boolean' }),
                field('slider', { i18n: 'slider', min: -5, max: 5, step: 1 }),
                field('edit', { i18n: 'text', validation: 'C1' }),
                field('edit', { i18n: 'no text', validation: 'C0' }),
                field('edit', { i18n: 'negative number', validation: 'N2', range: [-100, 50] }),
                field('edit', { i18n: 'number', validation: 'N3', range: [7, 500], remote: 0 }),
                field('edit', { i18n: 'other rule', validation: 'GPS' }),
                field('edit', { i18n: 'no rule' })]), page('below', [])]))",
            1);
        row("compartments and meters nested", R"(define([to('tanks'), to('setup')], [
                list('tanks', 'compBtn'),
                page('tanksModifyDo', [field('boolean', { i18n: 'tank' }), to('pumps')]),
                list('pumps', 'meterBtn'),
                page('pumpsModifyDo', [field('boolean', { i18n: 'pump' })]), setup, can]))",
            5);
        row("lists without a text for their first value", R"(define([to('p')], [page('p', [
                field('dropdown', { i18n: 'a', values: ['', 'b'], dbValues: ['A', 'B'] }),
                field('dropdown', { i18n: 'b', values: ['a', 'b'], dbValues: ['', 'B'] }),
                field('dropdown', { i18n: 'c', values: ['', 'b'] })])]))",
            1);
    }

    void takesWritesOfEachScreenWithTheSameWords()
    {
        define(R"(var longer = page('same', [field('boolean'), field('label')]);
            longer.css = 'longer';
            define([to('same'), to('longer')], [page('same', [field('boolean')]), longer]))");
        DeviceState state = deviceFromMenu(files.paths(), {}, {});
        QVERIFY(acceptWrite(state, "set same", { true, "x" }));
        QVERIFY(acceptWrite(state, "set same", { false }));
        QCOMPARE(read(state, "get same"), QByteArray(R"([false,"x"])"));
    }

    void inventsWhatIsNotKnown()
    {
        define("define([to('p')], [page('p', [field('slider', { min: -5, max: 5, step: 1 }),"
               " field('boolean'), field('label')])])");
        DeviceState state = deviceFromMenu(files.paths(), {}, {});
        QCOMPARE(read(state, "get p"), QByteArray(R"([-5,false,"value 3"])"));
        QCOMPARE(sealValue(state), QVariant(true));
        // By hand: values in the order of the entries, and words that nothing writes with.
        const auto known = stateFromJson(
            R"({"groups": {"get p": {"values": [1, true], "writes": {"set q": [3]}},
                           "get r": {"values": [1], "writes": {"set r": [1]}}}})");
        state = deviceFromMenu(files.paths(), *known, {});
        QCOMPARE(read(state, "get p"), QByteArray(R"([1,true,"value 3"])"));
        QVERIFY(
            !acceptWrite(state, "set q", { 1, true, "x" }) && !acceptWrite(state, "set r", { 1 }));
    }

    void refusesWhatDoesNotFit()
    {
        const Rows row = [this](const QByteArray &written, const QByteArray &stored) {
            define(R"(define([to('p')], [page('p', [
                field('boolean'), field('slider', { i18n: 'slider', max: 5, step: 1 }),
                field('dropdown', { values: ['a', 'b'], dbValues: ['A', 2.5] }),
                field('edit', { i18n: 'number', validation: 'N2', range: [9, 50] }),
                field('edit', { i18n: 'text', validation: 'C1', range: [0, 9] }),
                field('dropdown', { values: ['a', 'b'] })])]))");
            DeviceState state = deviceFromMenu(files.paths(), {}, {});
            const QByteArray limits = R"({"limits": {
                "slider": {"min": 1, "max": 5}, "number": {"min": 9}, "text": {"maxLength": 2}}})";
            state.limits = stateFromJson(limits)->limits;
            const QByteArray before = stateJson(state);
            const QVariantList values = parseJson(written)->toList();
            QCOMPARE(acceptWrite(state, "set p", values), !stored.isEmpty());
            QCOMPARE(stateJson(state) == before, stored.isEmpty() || stored == written);
            if (!stored.isEmpty())
                QCOMPARE(read(state, "get p"), stored);
        };
        row("as read, though below its minimum", R"([false,0,"A",9,"v",0])",
            R"([false,0,"A",9,"v",0])");
        row("as typed", R"([true,5,2.5,"10","x",1])", R"([true,5,2.5,10,"x",1])");
        row("too few", R"([false,0,"A",9,"v"])", "");
        row("too many", R"([false,0,"A",9,"v",0,1])", "");
        row("no boolean", R"([1,0,"A",9,"v",0])", "");
        row("no position", R"([false,"","A",9,"v",0])", "");
        row("no option", R"([false,0,"B",9,"v",0])", "");
        row("no number", R"([false,0,"A","x","v",0])", "");
        row("no text", R"([false,0,"A",9,5,0])", "");
        row("below the device's minimum", R"([false,0,"A",8,"v",0])", "");
        row("above its maximum", R"([false,6,"A",9,"v",0])", "");
        row("longer than its texts", R"([false,0,"A",9,"xyz",0])", "");
    }

    void keepsWhatIsKnown()
    {
        const auto deviceFor = [&](const QByteArray &fields, const DeviceState &known,
                                   const DeviceWishes &wishes) {
            define("define([to('tanks')], [list('tanks', 'compBtn'), page('tanksModifyDo', ["
                + fields + "]), setup])");
            return deviceFromMenu(files.paths(), known, wishes);
        };
        const char *const one = "field('edit', { i18n: 'name', validation: 'C5' })";
        DeviceState state = deviceFor(one, {}, { 5, {}, true });
        QVERIFY(acceptWrite(state, "set tanksModifyDo 4", { "known" }));
        state = deviceFor(one, state, {});
        QCOMPARE(read(state, "get tanksModifyDo 4"), QByteArray(R"(["known"])"));
        QCOMPARE(sealValue(state), QVariant(false));
        QCOMPARE(read(state, "get btnParameterTruckSetup"), QByteArray(R"(["value 1",5])"));
        // With fewer compartments for a while, and with entries before it.
        state = deviceFor(one, state, { 2, {}, false });
        state = deviceFor("{}, { i18n: 'name' }, { i18n: 'name' }", state, { 5, {}, {} });
        QCOMPARE(
            read(state, "get tanksModifyDo 4"), QByteArray(R"(["value 1","known","value 3"])"));
        QCOMPARE(sealValue(state), QVariant(true));
        // A script that defines no screens, as while it is being changed.
        files.setScript("var = 1");
        state = deviceFromMenu(files.paths(), state, {});
        QCOMPARE(
            read(state, "get tanksModifyDo 4"), QByteArray(R"(["value 1","known","value 3"])"));
    }

    void followsTheSealOfTheDefinition()
    {
        define("define([to('seal')], [page('seal', [field('boolean', { i18n: 'closed' })])])");
        const auto known = stateFromJson(R"({"seal": ["get seal", "closed"]})");
        // An empty path names no entry, not even one without a name.
        auto none = stateFromJson(R"({"seal": [], "groups": {"": {"keys": [""], "values": [5]}}})");
        QCOMPARE(sealValue(*none), QVariant(true));
        DeviceState state = deviceFromMenu(files.paths(), *known, { {}, {}, true });
        QCOMPARE(sealValue(state), QVariant(false));
        QVERIFY(acceptWrite(state, "set seal", { true }));
        QCOMPARE(sealValue(state), QVariant(true));
    }

    void movesWhatAnInterfaceMeasures()
    {
        DeviceState state = *stateFromJson(R"({"interfaces": {"X": {"query": "get", "drift": [0, 2],
            "answer": [["1", [9223372036854775806, 0, 2.5]]]}}})");
        QVERIFY(!switchInterface(state, { "X", 1 }));
        for (const QByteArray numbers : { "9223372036854775806,0,2.5", "9223372036854775806,0,2.5",
                 "9223372036854775807,0,2.6", "9223372036854775807,0,2.7" }) {
            QCOMPARE(deviceJson(interfaceAnswer(state, "get", "")), "[[\"1\",[" + numbers + "]]]");
            QVERIFY(switchInterface(state, { "X", true })); // the first answer was before it
        }
    }

    void documentsItsState()
    {
        const QByteArray text = sourceFile("packaging/dravikon-preview.1");
        const int start = text.indexOf("\n{\n") + 1;
        const QByteArray example = text.mid(start, text.indexOf("\n}\n", start) + 3 - start);
        files.setScript(R"(Settings = { settings: [{ screens: [
            { i18n: 'display_unit', inputType: 'dropdown', values: ['l', 'm3'] },
            { i18n: 'display_brightness', inputType: 'slider', max: 10, step: 1 }],
            'ajax-read': 'get_menu display', 'ajax-write': 'set_menu display' }] })");
        const std::optional<DeviceState> state = stateFromJson(example);
        QVERIFY2(state, example);
        QCOMPARE(stateJson(deviceFromMenu(files.paths(), *state, {})), example);
    }

    void leavesFilesThatItDidNotMake()
    {
        const QTemporaryDir directory;
        files.setScript("");
        for (const char *name : { "state.json", "DBusController" }) {
            const QString path = directory.filePath(name);
            QVERIFY(QFile::copy(files.paths().settingsScript, path));
            QVERIFY(makeSimulatedDevice(directory.path(), program, files.paths(), {}, {})
                        .contains(path));
            QVERIFY(QFileInfo(path).isFile() && QFileInfo(path).size() == 0);
            QFile::remove(path);
        }
        QVERIFY(mkfifo(qPrintable(stateFile(directory.path())), 0600) == 0);
        QVERIFY(makeSimulatedDevice(directory.path(), program, files.paths(), {}, {})
                    .contains("state.json is no JSON object"));
    }

    void refusesWrongUsage()
    {
        const Rows row = [this](const QString &options, const QString &message) {
            const ProgramResult result = preview(options);
            QCOMPARE(result.status, 2);
            QCOMPARE(result.messages, "dravikon-preview: " + message + '\n');
        };
        row("unknown option", "--x", "Unknown option 'x'.");
        row("too many compartments", "--compartments 1000",
            "--compartments takes a number from 0 to 999");
        row("no idle time", "--idle 0", "--idle takes a number from 1 to 2147483647");
        row("other seal", "--seal broken", "--seal is open or closed");
        row("empty path", "--web-root ''", "--web-root needs a value");
        row("tool that is no file", "--tool /",
            "/ cannot be started: it is no file; correct its path");
        row("trace in a file", "--trace /dev/null/x", "cannot write /dev/null/x: Not a directory");
        row("full disk", "--help > /dev/full",
            "the output is not complete: No space left on device");
        row("closed standard output", "--help >&-",
            "the output is not complete: Bad file descriptor");
    }

    void makesTheDeviceThatIsWanted()
    {
        define("var pages = [], digits = '0123456789'.split('');"
               "for (var digit in digits) pages.push(page(digit, [{}]));"
               "define(digits.map(to), [setup, can].concat(pages))");
        const QTemporaryDir directory;
        const QString state = "--state " + directory.path();
        const auto answer = [&](const char *words) {
            return runProgram(simulatedTool(directory.path()), { words }).output;
        };
        QCOMPARE(preview(state + " --compartments 5 --meters 1 --seal open").status, 0);
        // The first start makes the link to the tool, the second one replaces it.
        for (int number = 1; number <= 2; ++number) {
            QCOMPARE(answer("get btnParameterTruckSetup"), QString("[\"value 1\",5]\n"));
            QCOMPARE(answer("get btnParameterInterfacesCanFasWm"), QString("[1]\n"));
            QCOMPARE(answer("get_menu_electronic_seal_status"), QString("[\"i18n_wm_false\"]\n"));
            QCOMPARE(preview(state).status, 0);
        }
        QCOMPARE(preview(state + " --seal closed").status, 0);
        QCOMPARE(answer("get_menu_electronic_seal_status"), QString("[\"i18n_wm_true\"]\n"));
        // Calls at the same time do not disturb each other.
        const QString tool = "tool=" + simulatedTool(directory.path()) + "; ";
        QCOMPARE(runShell(tool
                     + "for n in {0..9}; do $tool set $n [$n] & done | uniq; wait; "
                       "for n in {0..9}; do $tool get $n; done")
                     .output,
            QString("[true]\n[0]\n[1]\n[2]\n[3]\n[4]\n[5]\n[6]\n[7]\n[8]\n[9]\n"));
        // As on a full disk, nothing can be written.
        const QString full = "trap '' XFSZ; ulimit -f 0; ";
        QCOMPARE(runShell(full + tool + "$tool set 1 [2]").output, QString("[false]\n"));
        QCOMPARE(preview(state, full).status, 1);
        QCOMPARE(answer("get 1"), QString("[1]\n"));
        QCOMPARE(runShell(tool + "$tool get 1 > /dev/full").status, 1);
    }

    void runsTheToolThatIsNamed()
    {
        files.setTool("echo own tool");
        const QString trace = files.paths().webRoot + "/trace";
        PtySession session;
        session.setStandardError("/dev/null");
        QVERIFY(session.start(program,
            { "--web-root", files.paths().webRoot, "--tool", files.paths().backendTool, "--trace",
                trace },
            24, 80));
        QVERIFY(session.waitForText("DBC ver: own tool") && session.send("q"));
        QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Exited, 0 }));
        QVERIFY(readFile(trace).contains("own tool"));
    }

    void exampleToolSuitsTheConsole()
    {
        const QTemporaryDir directory;
        const QString tool = directory.filePath("DBusController");
        runProgram("install", { SOURCES "/packaging/examples/DBusController", tool });
        // It has values for some screens only; whatever else it answers is as it has to be.
        const QString report =
            runProgram(CHECKER, { "--web-root=" SOURCES "/demo/web", "--device", "--tool=" + tool })
                .output;
        QVERIFY(!report.isEmpty());
        for (const QString &line : report.trimmed().split('\n'))
            QVERIFY2(line.endsWith(" [few-values]"), qPrintable(line));
        // In several words and in one; a write with no values or another number of them is refused.
        const QString values =
            "[false,\"two  blanks, * and \\\\],\",1.5, {\"a\": [1,2]},[],[[6]],7,8,null]";
        const QString calls = "%1 set_menu compartment 2 '%2'; %1 set_menu compartment 2; "
                              "%1 set_menu compartment 2 '[1,2]'; %1 'get_menu compartment 2'";
        QCOMPARE(runShell(calls.arg(tool, values)).output, "[true]\n" + values + '\n');
    }

    void leavesNothing()
    {
        const QByteArray loop = "for (;;) ;";
        const QByteArray menu = "Settings = { settings: [{ screens: [{}] }] };";
        const QByteArray loopInReport =
            "Settings = { settings: [{ get checkIgnore() { " + loop + " }, screens: [{}] }] };";
        const Rows row = [&](Moment moment, const QByteArray &script, int number,
                             const ExitStatus &status) {
            files.setScript(script);
            const QTemporaryDir temporary;
            const QDir directory(temporary.path());
            PtySession session;
            session.setStandardError("/dev/null");
            QVERIFY(session.start("/usr/bin/env",
                { "TMPDIR=" + directory.path(), program, "--web-root", files.paths().webRoot }, 24,
                80));
            QVERIFY(session.waitFor([&] { return !directory.isEmpty(); }));
            QVERIFY(moment == MakingTheDevice || session.waitForText("Drav"));
            if (moment == OnAStuckTerminal) {
                session.stopOutput();
                QVERIFY(session.press(Key::down));
            } else if (moment == Reporting) {
                const auto isOver = [&] { return (session.attributes().c_lflag & ICANON) != 0; };
                QVERIFY(session.send("q") && session.waitFor(isOver));
            }
            endBy(number, session);
            if (moment != InTheMenu) // where a second Ctrl-C would end the report
                QVERIFY(session.waitFor([&] { // the end of the session can take the first Ctrl-C
                    session.send(Key::interrupt);
                    return session.status().state != ExitStatus::Running;
                }));
            QCOMPARE(session.waitForExit(), status);
            QVERIFY(session.waitFor([&] { return directory.isEmpty(); }));
        };
        const ExitStatus endedWell { ExitStatus::Exited, 0 };
        files.setTranslations("{}");
        row("Ctrl-C in an endless script", MakingTheDevice, loop, SIGINT,
            { ExitStatus::Killed, SIGINT });
        row("Ctrl-C in the menu", InTheMenu, menu, SIGINT, endedWell);
        row("hang-up", InTheMenu, menu, SIGHUP, { ExitStatus::Killed, SIGHUP });
        row("SIGKILL", InTheMenu, menu, SIGKILL, { ExitStatus::Killed, SIGKILL });
        row("cut off", OnAStuckTerminal, menu, SIGINT, endedWell);
        row("Ctrl-C in an endless check", Reporting, loopInReport, SIGINT,
            { ExitStatus::Killed, SIGINT });
    }

    void reportsProblemsAfterTheSession()
    {
        const Rows row = [this](const QByteArray &script, int status, const QString &problem) {
            files.setScript(script);
            const ProgramResult result = preview("");
            QVERIFY2(result.messages.contains(problem), qPrintable(result.messages));
            QCOMPARE(result.messages.contains("dravikon-preview: ")
                    || result.messages.contains("error: "),
                !problem.isEmpty());
            QCOMPARE(result.status, status);
        };
        files.setTranslations("{}");
        row("good", "Settings = {settings: [{css: '1', screens: []}], setupStructureVersion: 1}", 0,
            "");
        row("no screens", "var = 1", 0, " [script]\n");
        files.setScript("");
        const QString table = files.paths().webRoot + "/locales/en/translation.json";
        for (const QString &path : { table, files.paths().settingsScript }) {
            QVERIFY(QFile::remove(path) && mkfifo(qPrintable(path), 0600) == 0);
            QVERIFY(preview("").messages.contains(path + ": it is no regular file"));
            QFile::remove(path);
        }
        QVERIFY(preview("").messages.contains("dravikon-preview: cannot load "));
        QCOMPARE(preview("2> /dev/full").status, 2);
        if (EMULATED)
            return QTest::qSkip("this processor's engine does not crash", __FILE__, __LINE__);
        row("crash in the report",
            QByteArray("Settings = { settings: [{ get checkIgnore() { ") + crash + "; } }] };", 0,
            "dravikon-preview: the script engine crashes (signal ");
        row("crash without a session", crash, 1,
            "dravikon-preview: the script engine crashes (signal ");
        QCOMPARE(preview("2> /dev/full").status, 1);
    }
};

QTEST_GUILESS_MAIN(PreviewTest)
#include "PreviewTest.moc"
