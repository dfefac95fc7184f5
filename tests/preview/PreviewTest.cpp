#include "json/JsonReader.h"
#include "preview/DeviceState.h"
#include "preview/MenuValues.h"
#include "preview/SimulatedDevice.h"
#include "render/Selection.h"
#include "render/ValueDialog.h"
#include "terminal/Keys.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Rows.h"
#include "tests/support/RunProgram.h"

#include <csignal>

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

// When a preview is ended.
enum Moment { MakingTheDevice, InTheMenu, OnAStuckTerminal, Reporting };
Q_DECLARE_METATYPE(Moment)
Q_DECLARE_METATYPE(ExitStatus)

class PreviewTest : public QObject {
    Q_OBJECT

    FakeDevice files;
    const QString program = QStringLiteral(PREVIEW);
    QStringList changed; ///< label keys of the entries whose value could be changed
    QStringList unchanged; ///< of the others that the menu lets one edit

    // Chooses the next value in the item's dialog; false when it takes none.
    static bool choose(TreeViewItemHandler &menu, TreeViewItem &item)
    {
        ViewState state;
        state.currentView = EditView;
        state.visibleItems = { &item };
        state.resetDialog();
        valueDialog(state, menu, item);
        state.editBuffer = QString::number(item.value.toInt() + 1);
        moveSelection(state, menu, true, 1);
        moveSelection(state, menu, false, 1);
        return commitValue(state, menu, 0);
    }

    // False for the value of a list that has no text for it.
    static bool isShown(const TreeViewItemHandler &menu, const TreeViewItem &item)
    {
        const InputKind kind = menu.inputKind(item);
        if (kind != DropdownInput && kind != SelectLabelInput)
            return true;
        const int position = menu.hasDatabaseValues(item)
            ? menu.indexOfDatabaseValue(item, item.value)
            : item.value.toInt();
        return !menu.valueAt(item, position).toString().isEmpty();
    }

    static QByteArray shellOutput(const QString &command)
    {
        return runProgram(QStringLiteral("/bin/bash"), { QStringLiteral("-c"), command }).output;
    }

    static QByteArray read(const DeviceState &state, const char *words)
    {
        return deviceJson(state.groups.at(QLatin1String(words)).values);
    }

    // Tries all values of a definition on a device with three compartments and two meters.
    void play(const QByteArray &script)
    {
        changed.clear();
        unchanged.clear();
        files.setScript(script);
        const QTemporaryDir directory;
        const DeviceWishes wishes { 3, 2, true };
        QCOMPARE(
            makeSimulatedDevice(directory.path(), program, files.paths(), {}, wishes), QString());
        DevicePaths paths = files.paths();
        paths.backendTool = simulatedTool(directory.path());
        TreeViewItemHandler menu(paths);
        const auto root = menu.build();
        menu.updateAccessLevel();
        playScreen(menu, *root, *root);
    }

    void playScreen(TreeViewItemHandler &menu, TreeViewItem &root, TreeViewItem &screen)
    {
        if (screen.parentItem)
            menu.toggleItem(root, &screen, false);
        for (const auto &child : screen.children) {
            TreeViewItem &item = *child;
            const QString key = menu.labelKey(item);
            if (menu.readBinding(screen) && menu.isValueBearing(item))
                QVERIFY2(item.value.isValid() && isShown(menu, item), qPrintable(key));
            if (!item.children.empty()) {
                playScreen(menu, root, item);
            } else if (menu.writeBinding(screen) && menu.isEditable(item)) {
                if (!choose(menu, item)) {
                    unchanged += key;
                    continue;
                }
                const QString chosen = item.value.toString();
                QVERIFY2(menu.writeItemValues(item), qPrintable(key));
                item.value.clear();
                menu.toggleItem(root, &screen, false); // closes it
                menu.toggleItem(root, &screen, false);
                QCOMPARE(item.value.toString(), chosen);
                changed += key;
            }
        }
    }

private slots:
    void playsEveryScreen_data()
    {
        // The labels of the entries whose value changes, and of those that refuse every value.
        const Rows<QByteArray, QString, QString> row("script", "changing", "refusing");
        const auto add = [&row](const char *name, const char *define, const char *changing,
                             const char *refusing) {
            row(name, QByteArray(helpers) + define, changing, refusing);
        };
        add("every input kind", R"(define([to('kinds')], [page('kinds', [
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
            "position,option,few options,boolean,slider,text,number",
            "no text,negative number,other rule,no rule");
        add("compartments and meters nested", R"(define([to('tanks'), to('setup')], [
                list('tanks', 'compBtn'),
                page('tanksModifyDo', [field('boolean', { i18n: 'tank' }), to('pumps')]),
                list('pumps', 'meterBtn'),
                page('pumpsModifyDo', [field('boolean', { i18n: 'pump' })]), setup, can]))",
            "tank,pump,pump,tank,pump,pump,tank,pump,pump", "");
        add("screens with the same words", R"(function same(css, fields) {
                var made = page('same', fields);
                made.css = css;
                return made;
            }
            define([to('a'), to('b'), to('c')], [same('a', [field('boolean', { i18n: 'a' })]),
                same('b', [field('boolean', { i18n: 'b' }), field('label')]),
                same('c', [field('boolean', { i18n: 'c' })])]))",
            "a,b,c", "");
        add("lists without a text for their first value", R"(define([to('p')], [page('p', [
                field('dropdown', { i18n: 'a', values: ['', 'b'], dbValues: ['A', 'B'] }),
                field('dropdown', { i18n: 'b', values: ['a', 'b'], dbValues: ['', 'B'] }),
                field('dropdown', { i18n: 'c', values: ['', 'b'] })])]))",
            "a,b,c", "");
    }

    void playsEveryScreen()
    {
        QFETCH(QByteArray, script);
        play(script);
        QTEST(changed.join(QLatin1Char(',')), "changing");
        QTEST(unchanged.join(QLatin1Char(',')), "refusing");
    }

    void playsTheDemo()
    {
        QFile demo(QStringLiteral(SOURCES "/demo/web/scripts/settings.js"));
        QVERIFY(demo.open(QIODevice::ReadOnly));
        play(demo.readAll());
        QVERIFY(changed.contains(QStringLiteral("limits_flow")));
        unchanged.removeDuplicates();
        // Rules that only browsers know: decimals, addresses, dates and the like.
        QCOMPARE(unchanged.join(QLatin1Char(' ')),
            QStringLiteral("calibration_factor meter_k_factor limits_density limits_raw_pressure "
                           "limits_raw_mask limits_raw_delay limits_raw_tag limits_raw_free "
                           "interfaces_network_address interfaces_network_mask "
                           "interfaces_network_gateway telematics_home telematics_licence "
                           "date_time_date date_time_time"));
    }

    void refusesWhatDoesNotFit_data()
    {
        const Rows<QString, QString> row("written", "stored"); // nothing when it is refused
        row("as read, though below its minimum", R"([false,0,"A",9,"v","value 6"])",
            R"([false,0,"A",9,"v","value 6"])");
        row("as typed", R"([true,5,2.5,"10","x","value 6"])", R"([true,5,2.5,10,"x","value 6"])");
        row("too few", R"([false,0,"A",9,"v"])", "");
        row("too many", R"([false,0,"A",9,"v","value 6",1])", "");
        row("no boolean", R"([1,0,"A",9,"v","value 6"])", "");
        row("no position", R"([false,"","A",9,"v","value 6"])", "");
        row("no option", R"([false,0,"B",9,"v","value 6"])", "");
        row("no number", R"([false,0,"A","x","v","value 6"])", "");
        row("no text", R"([false,0,"A",9,5,"value 6"])", "");
        row("below the device's minimum", R"([false,0,"A",8,"v","value 6"])", "");
        row("above its maximum", R"([false,6,"A",9,"v","value 6"])", "");
        row("longer than its texts", R"([false,0,"A",9,"xyz","value 6"])", "");
    }

    void refusesWhatDoesNotFit()
    {
        QFETCH(QString, written);
        QFETCH(QString, stored);
        files.setScript(QByteArray(helpers) + R"(define([to('p')], [page('p', [
            field('boolean'), field('slider', { i18n: 'slider', max: 5, step: 1 }),
            field('dropdown', { values: ['a', 'b'], dbValues: ['A', 2.5] }),
            field('edit', { i18n: 'number', validation: 'N2', range: [9, 50] }),
            field('edit', { i18n: 'text', validation: 'C1', range: [0, 9] }), field('label')])]))");
        DeviceState state = deviceFromMenu(files.paths(), {}, {});
        const QByteArray limits = R"({"limits": {
            "slider": {"min": 1, "max": 5}, "number": {"min": 9}, "text": {"maxLength": 2}}})";
        state.limits = stateFromJson(limits)->limits;
        const QByteArray before = stateJson(state);
        const QVariantList values = parseJson(written.toUtf8())->toList();
        QCOMPARE(acceptWrite(state, QStringLiteral("set p"), values), !stored.isEmpty());
        if (stored.isEmpty())
            QCOMPARE(stateJson(state), before);
        else
            QCOMPARE(read(state, "get p"), stored.toUtf8());
    }

    void keepsWhatIsKnown()
    {
        const QByteArray definition = QByteArray(helpers) + R"(define([to('tanks')],
            [list('tanks', 'compBtn'), page('tanksModifyDo', fields), setup]))";
        const auto deviceFor = [&](const char *fields, const DeviceState &known,
                                   const DeviceWishes &wishes) {
            files.setScript("var fields = [" + QByteArray(fields) + "];" + definition);
            return deviceFromMenu(files.paths(), known, wishes);
        };
        const char *const one = "field('edit', { i18n: 'name', validation: 'C5' })";
        DeviceState state = deviceFor(one, {}, { 5, {}, true });
        QVERIFY(
            acceptWrite(state, QStringLiteral("set tanksModifyDo 4"), { QStringLiteral("known") }));
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
        files.setScript(QByteArray(helpers)
            + "define([to('seal')], [page('seal', [field('boolean', { i18n: 'closed' })])])");
        const auto known = stateFromJson(R"({"seal": ["get seal", "closed"]})");
        DeviceState state = deviceFromMenu(files.paths(), *known, { {}, {}, true });
        QCOMPARE(sealValue(state), QVariant(false));
        QVERIFY(acceptWrite(state, QStringLiteral("set seal"), { true }));
        QCOMPARE(sealValue(state), QVariant(true));
    }

    void documentsItsState()
    {
        QFile manual(QStringLiteral(SOURCES "/packaging/dravikon-preview.1"));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        const QByteArray text = manual.readAll();
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
            const QString path = directory.filePath(QLatin1String(name));
            QVERIFY(QFile::copy(files.paths().settingsScript, path));
            QVERIFY(makeSimulatedDevice(directory.path(), program, files.paths(), {}, {})
                        .contains(path));
            QVERIFY(QFileInfo(path).isFile() && QFileInfo(path).size() == 0);
            QFile::remove(path);
        }
    }

    void refusesWrongUsage_data()
    {
        const Rows<QString, QString> row("options", "message");
        row("unknown option", "--x", "Unknown option 'x'.");
        row("word", "x", "unexpected x");
        row("too many compartments", "--compartments 1000",
            "--compartments takes a number from 0 to 999");
        row("no number", "--meters x", "--meters takes a number from 0 to 999");
        row("negative number", "--meters=-1", "--meters takes a number from 0 to 999");
        row("no idle time", "--idle 0", "--idle takes a number from 1 to 2147483647");
        row("other seal", "--seal broken", "--seal is open or closed");
        row("empty path", "--web-root ''", "--web-root takes a path");
        row("tool that is no file", "--tool /",
            "/ cannot be started: it is no file; correct its path");
        row("trace in a file", "--trace /dev/null/x", "cannot write /dev/null/x: Not a directory");
        row("full disk", "--help > /dev/full",
            "the output is not complete: No space left on device");
        row("closed standard output", "--help >&-",
            "the output is not complete: Bad file descriptor");
    }

    void refusesWrongUsage()
    {
        QFETCH(QString, options);
        QFETCH(QString, message);
        const ProgramResult result = runProgram(QStringLiteral("/bin/sh"),
            { QStringLiteral("-c"), QStringLiteral("exec %1 2>&1 %2").arg(program, options) });
        QCOMPARE(result.end, (ExitStatus { ExitStatus::Exited, 2 }));
        QCOMPARE(result.output, QStringLiteral("dravikon-preview: %1\n").arg(message).toUtf8());
    }

    void makesTheDeviceThatIsWanted()
    {
        files.setScript(QByteArray(helpers)
            + "var pages = [], digits = '0123456789'.split('');"
              "for (var digit in digits) pages.push(page(digit, [{}]));"
              "define(digits.map(to), [setup, can].concat(pages))");
        const QTemporaryDir directory;
        const auto start = [&](const char *options, const QString &before = {}) {
            const auto command = before
                + QStringLiteral("exec %1 --web-root %2 --idle 1 --state %3 %4 2>/dev/null")
                      .arg(
                          program, files.paths().webRoot, directory.path(), QLatin1String(options));
            return runProgram(QStringLiteral("/bin/sh"), { QStringLiteral("-c"), command }).end;
        };
        const auto answer = [&](const char *words) {
            return runProgram(simulatedTool(directory.path()), { QLatin1String(words) }).output;
        };
        const ExitStatus endedWell { ExitStatus::Exited, 0 };
        QCOMPARE(start("--compartments 5 --meters 1 --seal open"), endedWell);
        // The first start makes the link to the tool, the second one replaces it.
        for (int number = 1; number <= 2; ++number) {
            QCOMPARE(answer("get btnParameterTruckSetup"), QByteArray("[\"value 1\",5]\n"));
            QCOMPARE(answer("get btnParameterInterfacesCanFasWm"), QByteArray("[1]\n"));
            QCOMPARE(
                answer("get_menu_electronic_seal_status"), QByteArray("[\"i18n_wm_false\"]\n"));
            QCOMPARE(start(""), endedWell);
        }
        QCOMPARE(start("--seal closed"), endedWell);
        QCOMPARE(answer("get_menu_electronic_seal_status"), QByteArray("[\"i18n_wm_true\"]\n"));
        // Calls at the same time do not disturb each other.
        const auto calls =
            QStringLiteral("t=%1; for n in {0..9}; do $t set $n [$n] & done | uniq; wait; "
                           "for n in {0..9}; do $t get $n; done");
        QCOMPARE(shellOutput(calls.arg(simulatedTool(directory.path()))),
            QByteArray("[true]\n[0]\n[1]\n[2]\n[3]\n[4]\n[5]\n[6]\n[7]\n[8]\n[9]\n"));
        // As on a full disk, nothing can be written.
        const QString full = QStringLiteral("trap '' XFSZ; ulimit -f 0; ");
        QCOMPARE(shellOutput(full + simulatedTool(directory.path()) + QStringLiteral(" set 1 [2]")),
            QByteArray("[false]\n"));
        QCOMPARE(start("", full), (ExitStatus { ExitStatus::Exited, 1 }));
        QCOMPARE(answer("get 1"), QByteArray("[1]\n"));
        QCOMPARE(shellOutput(simulatedTool(directory.path())
                     + QStringLiteral(" get 1 > /dev/full; echo $?")),
            QByteArray("1\n"));
    }

    void runsTheToolThatIsNamed()
    {
        files.setScript("");
        files.setTool("echo own tool");
        PtySession session;
        session.setStandardError(QStringLiteral("/dev/null"));
        QVERIFY(session.start(program,
            { QStringLiteral("--web-root"), files.paths().webRoot, QStringLiteral("--tool"),
                files.paths().backendTool },
            24, 80));
        QVERIFY(session.waitForText(QStringLiteral("DBC ver: own tool")) && session.send("q"));
        QCOMPARE(session.waitForExit(), (ExitStatus { ExitStatus::Exited, 0 }));
    }

    void exampleToolSuitsTheConsole()
    {
        const QTemporaryDir directory;
        const QString tool = directory.path() + QStringLiteral("/DBusController");
        shellOutput(
            QStringLiteral("install " SOURCES "/packaging/examples/DBusController ") + tool);
        // It has values for some screens only; whatever else it answers is as it has to be.
        const QByteArray report = shellOutput(QStringLiteral(
            CHECKER " --web-root=" SOURCES "/demo/web --device --tool=%1 2>/dev/null")
                                                  .arg(tool));
        QVERIFY(!report.isEmpty());
        for (const QByteArray &line : report.trimmed().split('\n'))
            QVERIFY2(line.endsWith(" [few-values]"), line);
        // In several words and in one; a write with no values or another number of them is refused.
        const QByteArray values =
            "[false,\"two  blanks, * and \\\\],\",1.5, {\"a\": [1,2]},[],[[6]],7,8,null]\n";
        const auto calls =
            QStringLiteral("%1 set_menu compartment 2 '%2'; %1 set_menu compartment 2; "
                           "%1 set_menu compartment 2 '[1,2]'; %1 'get_menu compartment 2'");
        QCOMPARE(shellOutput(calls.arg(tool, QString::fromLatin1(values.trimmed()))),
            "[true]\n" + values);
    }

    void leavesNothing_data()
    {
        const Rows<Moment, int, ExitStatus> row("moment", "number", "end");
        const auto killedBy = [](int number) { return ExitStatus { ExitStatus::Killed, number }; };
        const ExitStatus endedWell { ExitStatus::Exited, 0 };
        row("Ctrl-C in an endless script", MakingTheDevice, SIGINT, killedBy(SIGINT));
        row("SIGTERM in an endless script", MakingTheDevice, SIGTERM, killedBy(SIGTERM));
        row("Ctrl-C in the menu", InTheMenu, SIGINT, endedWell);
        row("hang-up", InTheMenu, SIGHUP, killedBy(SIGHUP));
        row("SIGTERM", InTheMenu, SIGTERM, killedBy(SIGTERM));
        row("SIGKILL", InTheMenu, SIGKILL, killedBy(SIGKILL));
        row("cut off", OnAStuckTerminal, SIGINT, endedWell);
        row("Ctrl-C in an endless check", Reporting, SIGINT, killedBy(SIGINT));
    }

    void leavesNothing()
    {
        QFETCH(Moment, moment);
        QFETCH(int, number);
        files.setTranslations("{}");
        const QByteArray loop = "for (;;) ;";
        const QByteArray entry =
            moment == Reporting ? "get checkIgnore() { " + loop + " }, " : QByteArray();
        files.setScript(moment == MakingTheDevice
                ? loop
                : "Settings = { settings: [{ " + entry + "screens: [{}] }] };");
        const QTemporaryDir temporary;
        const QDir directory(temporary.path());
        PtySession session;
        session.setStandardError(QStringLiteral("/dev/null"));
        QVERIFY(session.start(QStringLiteral("/usr/bin/env"),
            { QStringLiteral("TMPDIR=") + directory.path(), program, QStringLiteral("--web-root"),
                files.paths().webRoot },
            24, 80));
        QVERIFY(session.waitFor([&] { return !directory.isEmpty(); }));
        QVERIFY(moment == MakingTheDevice || session.waitForText(QStringLiteral("Drav")));
        if (moment == OnAStuckTerminal) {
            session.stopOutput();
            QVERIFY(session.press(Key::down));
        } else if (moment == Reporting) {
            const auto isOver = [&] { return (session.attributes().c_lflag & ICANON) != 0; };
            QVERIFY(session.send("q") && session.waitFor(isOver));
        }
        const auto end = [&] {
            if (number == SIGINT)
                session.send(Key::interrupt);
            else
                session.signal(number);
            return session.status().state != ExitStatus::Running;
        };
        if (number == SIGHUP)
            session.hangUp();
        else if (moment == InTheMenu)
            end(); // a second Ctrl-C would end the report
        else
            QVERIFY(session.waitFor(end)); // the end of the session can take the first Ctrl-C
        QTEST(session.waitForExit(), "end");
        QVERIFY(session.waitFor([&] { return directory.isEmpty(); }));
    }

    void reportsProblemsAfterTheSession()
    {
        QFile::remove(files.paths().settingsScript);
        const auto messages = [&] {
            // As luit does it, the program gets its name without the directory.
            return shellOutput(QStringLiteral(
                "exec -a dravikon-preview " PREVIEW " --idle 1 --web-root '%1' 2>&1 > /dev/null")
                                   .arg(files.paths().webRoot));
        };
        QVERIFY(messages().startsWith("dravikon-preview: cannot load "));
        files.setTranslations("{}");
        files.setScript("var = 1");
        QVERIFY(messages().startsWith("error: ") && messages().endsWith(" [script]\n"));
        QCOMPARE(
            shellOutput(QStringLiteral(PREVIEW " --idle 1 --web-root '%1' >/dev/null 2>/dev/full; "
                                               "echo $?")
                            .arg(files.paths().webRoot)),
            QByteArray("2\n"));
        files.setScreens("[{css: '1', screens: []}]");
        QCOMPARE(messages(), QByteArray());
    }

    void reportsCrashesOfTheEngine()
    {
        const QByteArray crash = "new RegExp(Array(1e5).join('(') + Array(1e5).join(')'))";
        // A sanitizer would report the crash by itself.
        const auto command = QStringLiteral("ASAN_OPTIONS=handle_segv=0 " PREVIEW
                                            " --idle 1 --web-root '%1' 2>&1 >/dev/null; echo $?")
                                 .arg(files.paths().webRoot);
        files.setTranslations("{}");
        files.setScript("Settings = { settings: [{ get checkIgnore() { " + crash + "; } }] };");
        const QByteArray afterTheSession = shellOutput(command);
        QVERIFY(afterTheSession.contains("dravikon-preview: the script engine crashes (signal "));
        QVERIFY(afterTheSession.endsWith("\n0\n"));
        files.setScript(crash);
        const QByteArray withoutSession = shellOutput(command);
        QVERIFY(withoutSession.contains("dravikon-preview: the script engine crashes (signal "));
        QVERIFY(withoutSession.endsWith("\n1\n"));
    }
};

QTEST_GUILESS_MAIN(PreviewTest)
#include "PreviewTest.moc"