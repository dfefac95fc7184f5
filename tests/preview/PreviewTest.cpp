#include "json/JsonReader.h"
#include "preview/DeviceState.h"
#include "preview/MenuValues.h"
#include "preview/SimulatedDevice.h"
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
    int valueCount = 0;
    int changeCount = 0;

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

    static QByteArray shellOutput(const QString &command)
    {
        return runProgram(QStringLiteral("/bin/bash"), { QStringLiteral("-c"), command }).output;
    }

    static QStringList wordsOf(const char *words)
    {
        return QString::fromUtf8(words).split(QLatin1Char(' '));
    }

    static QByteArray read(const QVariant &state, const char *words)
    {
        return deviceJson(readValues(state, wordsOf(words)));
    }

    void playScreen(TreeViewItemHandler &menu, TreeViewItem &root, TreeViewItem &screen)
    {
        if (screen.parentItem)
            menu.toggleItem(root, &screen, false);
        for (const auto &child : screen.children) {
            TreeViewItem &item = *child;
            if (menu.readBinding(screen) && menu.isValueBearing(item)) {
                QVERIFY2(item.value.isValid(), qPrintable(menu.labelKey(item)));
                ++valueCount;
            }
            if (menu.writeBinding(screen) && menu.isEditable(item) && choose(menu, item)) {
                const QString chosen = item.value.toString();
                QVERIFY2(menu.writeItemValues(item), qPrintable(menu.labelKey(item)));
                item.value.clear();
                menu.toggleItem(root, &screen, false); // closes it
                menu.toggleItem(root, &screen, false);
                QCOMPARE(item.value.toString(), chosen);
                ++changeCount;
            }
            if (!item.children.empty())
                playScreen(menu, root, item);
        }
    }

private slots:
    void playsEveryScreen_data()
    {
        const Rows<QByteArray, int, int> row("script", "values", "changes");
        QFile demo(QStringLiteral(SOURCES "/demo/web/scripts/settings.js"));
        QVERIFY(demo.open(QIODevice::ReadOnly));
        row("demo", demo.readAll(), 364, 152);
        const auto add = [&row](const char *name, const char *define, int values, int changes) {
            row(name, QByteArray(helpers) + define, values, changes);
        };
        add("every input kind", R"(define([to('kinds')], [page('kinds', [
                field('separator'), field('button'), field('label'), field('input'), {},
                field('selectlabel', { values: ['a'], dbValues: ['A'] }), to('below'),
                field('dropdown', { values: ['a', 'b'] }), field('boolean'),
                field('dropdown', { values: ['a', 'b', 'c'], dbValues: [2.5, 7, 'x'] }),
                field('dropdown', { values: ['a', 'b'], dbValues: ['x'] }),
                field('slider', { min: -5, max: 5, step: 1 }),
                field('edit', { validation: 'C1' }), field('edit', { validation: 'C0' }),
                field('edit', { validation: 'N2', range: [-100, 50] }),
                field('edit', { validation: 'N3', range: [7, 500], remote: 0 }),
                field('edit', { validation: 'GPS' }), field('edit')]), page('below', [])]))",
            16, 7);
        add("compartments and meters nested", R"(define([to('tanks'), to('setup')], [
                list('tanks', 'compBtn'), page('tanksModifyDo', [field('boolean'), to('pumps')]),
                list('pumps', 'meterBtn'), page('pumpsModifyDo', [field('boolean')]), setup, can]))",
            3 * (2 + 2), 3 * (1 + 2));
        add("screens with the same words", R"(function same(css, fields) {
                var made = page('same', fields); made.css = css; return made; }
            define([to('a'), to('b'), to('c')], [same('a', [field('boolean')]),
                same('b', [field('boolean'), field('label')]), same('c', [field('boolean')])]))",
            4, 3);
    }

    void playsEveryScreen()
    {
        QFETCH(QByteArray, script);
        QFETCH(int, values);
        QFETCH(int, changes);
        valueCount = changeCount = 0;
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
        QCOMPARE(valueCount, values);
        QCOMPARE(changeCount, changes);
    }

    void refusesWhatDoesNotFit_data()
    {
        const Rows<QString, bool> row("values", "isAccepted");
        row("as read", R"([false, 0, "A", 7, "v", "value 6"])", true);
        row("as typed", R"([true, 6, 2.5, "9", "x", "value 6"])", true);
        row("too few", R"([false, 0, "A", 7, "v"])", false);
        row("no boolean", R"([1, 0, "A", 7, "v", "value 6"])", false);
        row("no position", R"([false, "", "A", 7, "v", "value 6"])", false);
        row("no option", R"([false, 0, "B", 7, "v", "value 6"])", false);
        row("no number", R"([false, 0, "A", "x", "v", "value 6"])", false);
        row("no text", R"([false, 0, "A", 7, 5, "value 6"])", false);
    }

    void refusesWhatDoesNotFit()
    {
        QFETCH(QString, values);
        QFETCH(bool, isAccepted);
        files.setScript(QByteArray(helpers) + R"(define([to('p')], [page('p', [
            field('boolean'), field('slider', { max: 5, step: 1 }),
            field('dropdown', { values: ['a', 'b'], dbValues: ['A', 2.5] }),
            field('edit', { validation: 'N2', range: [7, 50] }),
            field('edit', { validation: 'C1', range: [0, 9] }), field('label')])]))");
        QVariant state = deviceFromMenu(files.paths(), {}, {});
        const QVariant before = state;
        const QVariantList written = parseJson(values.toUtf8())->toList();
        QCOMPARE(writeValues(state, wordsOf("set p"), written), isAccepted);
        QCOMPARE(state == before, !isAccepted || values.startsWith(QLatin1String("[false")));
    }

    void keepsWhatIsKnown()
    {
        const QByteArray definition = QByteArray(helpers) + R"(define([to('tanks')],
            [list('tanks', 'compBtn'), page('tanksModifyDo', fields), setup]))";
        files.setScript("var fields = [field('edit', {validation: 'C5'})];" + definition);
        QVariant state = deviceFromMenu(files.paths(), {}, { 5, {}, true });
        QVERIFY(writeValues(state, wordsOf("set tanksModifyDo 4"), { QStringLiteral("known") }));
        state = deviceFromMenu(files.paths(), state, {});
        QCOMPARE(read(state, "get tanksModifyDo 4"), QByteArray(R"(["known"])"));
        QCOMPARE(valueAt(state, { QStringLiteral("sealClosed") }), QVariant(false));
        QCOMPARE(read(state, "get btnParameterTruckSetup"), QByteArray(R"(["value 1",5])"));
        files.setScript("var fields = [{}, {}];" + definition);
        state = deviceFromMenu(files.paths(), state, { {}, {}, false });
        QCOMPARE(read(state, "get tanksModifyDo 4"), QByteArray(R"(["value 1","value 2"])"));
        QCOMPARE(valueAt(state, { QStringLiteral("sealClosed") }), QVariant(true));
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

    void exampleToolSuitsTheConsole()
    {
        const QTemporaryDir directory;
        const QString tool = directory.path() + QStringLiteral("/DBusController");
        shellOutput(
            QStringLiteral("install " SOURCES "/packaging/examples/DBusController ") + tool);
        // It has values for some screens only; whatever else it answers is as it has to be.
        const auto check =
            QStringLiteral(CHECKER " --web-root=" SOURCES "/demo/web --device"
                                   " --tool=%1 2>/dev/null | sed 's/.*\\[//' | uniq");
        QCOMPARE(shellOutput(check.arg(tool)), QByteArray("few-values]\n"));
        // In several words and in one.
        const QByteArray values = "[false,\"two  blanks, * and \\\\\",1.5]\n";
        const auto calls = QStringLiteral("%1 set_menu seal 2 '%2'; %1 'get_menu seal 2'");
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
        QTRY_VERIFY(directory.isEmpty());
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