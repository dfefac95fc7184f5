#include "json/JsonReader.h"
#include "preview/DeviceState.h"
#include "preview/MenuValues.h"
#include "preview/SimulatedDevice.h"
#include "render/ValueDialog.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/RunProgram.h"

#include <QtTest>

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
function define(screens) { Settings = { settings: screens }; }
)";

class PreviewTest : public QObject {
    Q_OBJECT

    FakeDevice files;
    int valueCount = 0;
    int changeCount = 0;

    // Chooses another value in the item's dialog; false when there is none.
    static bool choose(TreeViewItemHandler &menu, TreeViewItem &item)
    {
        ViewState state;
        state.currentView = EditView;
        state.visibleItems = { &item };
        state.resetDialog();
        valueDialog(state, menu, item);
        const int before = state.listIndex;
        bool isNumber = false;
        const int number = item.value.toInt(&isNumber);
        state.editBuffer = isNumber ? QString::number(number + 1) : QStringLiteral("x");
        moveSelection(state, menu, true, 1);
        moveSelection(state, menu, false, 1);
        if (state.listIndex == before)
            moveSelection(state, menu, false, -1);
        return commitValue(state, menu, 0);
    }

    void changeItem(TreeViewItemHandler &menu, TreeViewItem &root, TreeViewItem &item)
    {
        if (!menu.writeBinding(*item.parentItem) || !menu.isEditable(item) || !choose(menu, item))
            return;
        ++changeCount;
        const QString chosen = item.value.toString();
        QVERIFY2(menu.writeItemValues(item), qPrintable(menu.labelKey(item)));
        item.value.clear();
        menu.toggleItem(root, item.parentItem, false);
        QVERIFY(menu.toggleItem(root, item.parentItem, false));
        QCOMPARE(item.value.toString(), chosen);
    }

    void playScreen(TreeViewItemHandler &menu, TreeViewItem &root, TreeViewItem &screen)
    {
        if (screen.parentItem)
            QVERIFY(menu.toggleItem(root, &screen, false));
        for (const auto &child : screen.children) {
            if (menu.readBinding(screen) && menu.isValueBearing(*child)) {
                QVERIFY2(child->value.isValid(), qPrintable(menu.labelKey(*child)));
                ++valueCount;
            }
        }
        const size_t stride = screen.children.size() / 100 + 1;
        for (size_t i = 0; i < screen.children.size(); i += stride)
            changeItem(menu, root, *screen.children[i]);
        for (const auto &child : screen.children) {
            if (!child->children.empty())
                playScreen(menu, root, *child);
        }
    }

private slots:
    void playsEveryScreen_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<int>("values");
        QTest::addColumn<int>("changes");
        QFile demo(QStringLiteral(DEMO_SCRIPT));
        QVERIFY(demo.open(QIODevice::ReadOnly));
        QTest::newRow("demo") << demo.readAll() << 364 << 152;
        const auto add = [](const char *name, const char *define, int values, int changes) {
            QTest::newRow(name) << QByteArray(helpers) + define << values << changes;
        };
        add("no definition", "", 0, 0);
        add("no screens", "define([])", 0, 0);
        add("5,000 fields",
            "var fields = []; for (var i = 0; i < 5000; ++i) fields.push(field('boolean'));"
            "define([{ screens: [to('many')] }, page('many', fields)])",
            5000, 99);
        add("every input kind", R"(define([{ screens: [to('kinds')] }, page('kinds', [
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
        add("compartments and meters nested", R"(define([{ screens: [to('tanks'), to('setup')] },
                list('tanks', 'compBtn'), page('tanksModifyDo', [field('boolean'), to('pumps')]),
                list('pumps', 'meterBtn'), page('pumpsModifyDo', [field('boolean')]), setup, can]))",
            3 * (2 + 2), 3 * (1 + 2));
        add("screens as an object",
            "define([{ screens: { 1: to('page') } }, page('page', { x: field('boolean'),"
            "y: field('label') })])",
            2, 1);
        add("screens with the same words",
            R"(var small = page('same', [field('boolean')]), large = page('same', [field('boolean'),
                field('label')]); large.css = 'large';
            define([{ screens: [to('same'), to('large')] }, small, large]))",
            3, 2);
    }

    void playsEveryScreen()
    {
        QFETCH(QByteArray, script);
        QFETCH(int, values);
        QFETCH(int, changes);
        valueCount = changeCount = 0;
        files.setScript(script);
        const QTemporaryDir directory;
        QCOMPARE(makeSimulatedDevice(
                     directory.path(), QStringLiteral(PREVIEW), files.paths(), {}, { 3, 2, true }),
            QString());
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
        QTest::addColumn<QByteArray>("values");
        QTest::addColumn<bool>("isAccepted");
        QTest::newRow("as read") << QByteArray(R"([false, 0, "A", 7, "v", "value 6"])") << true;
        QTest::newRow("as typed") << QByteArray(R"([true, 6, 2.5, "9", "x", "value 6"])") << true;
        QTest::newRow("too few") << QByteArray(R"([false, 0, "A", 7, "v"])") << false;
        QTest::newRow("too many") << QByteArray(R"([false, 0, "A", 7, "v", "value 6", 1])")
                                  << false;
        QTest::newRow("no boolean") << QByteArray(R"([1, 0, "A", 7, "v", "value 6"])") << false;
        QTest::newRow("no position")
            << QByteArray(R"([false, "", "A", 7, "v", "value 6"])") << false;
        QTest::newRow("no option") << QByteArray(R"([false, 0, "B", 7, "v", "value 6"])") << false;
        QTest::newRow("no number")
            << QByteArray(R"([false, 0, "A", "x", "v", "value 6"])") << false;
        QTest::newRow("no text") << QByteArray(R"([false, 0, "A", 7, 5, "value 6"])") << false;
    }

    void refusesWhatDoesNotFit()
    {
        QFETCH(QByteArray, values);
        QFETCH(bool, isAccepted);
        files.setScript(QByteArray(helpers) + R"(define([{ screens: [to('p')] }, page('p', [
            field('boolean'), field('slider', { max: 5, step: 1 }),
            field('dropdown', { values: ['a', 'b'], dbValues: ['A', 2.5] }),
            field('edit', { validation: 'N2', range: [7, 50] }),
            field('edit', { validation: 'C1', range: [0, 9] }), field('label')])]))");
        QVariant state = deviceFromMenu(files.paths(), {}, {});
        const QStringList read { QStringLiteral("get"), QStringLiteral("p") };
        const QVariant before = readValues(state, read);
        QCOMPARE(writeValues(state, { QStringLiteral("set"), QStringLiteral("p") },
                     parseJson(values)->toList()),
            isAccepted);
        QCOMPARE(readValues(state, read) == before, !isAccepted || values.startsWith("[false"));
    }

    void keepsWhatIsKnown()
    {
        const auto read = [](const QVariant &state, const QString &words) {
            return deviceJson(readValues(state, words.split(QLatin1Char(' '))));
        };
        const QString tank = QStringLiteral("get tanksModifyDo 4");
        const QByteArray definition = QByteArray(helpers) + R"(define([{ screens: [to('tanks')] },
            list('tanks', 'compBtn'), page('tanksModifyDo', fields), setup]))";
        files.setScript("var fields = [{}];" + definition);
        QVariant state = deviceFromMenu(files.paths(), {}, { 5, {}, true });
        setValueAt(state,
            { QStringLiteral("groups"), QStringLiteral("get tanksModifyDo"),
                QStringLiteral("instances"), 4 },
            QVariantList { 12 });
        state = deviceFromMenu(files.paths(), state, {});
        QCOMPARE(read(state, tank), QByteArray("[12]"));
        QCOMPARE(valueAt(state, { QStringLiteral("sealClosed") }), QVariant(false));
        QCOMPARE(read(state, QStringLiteral("get btnParameterTruckSetup")),
            QByteArray(R"(["value 1",5])"));
        files.setScript("var fields = [{}, {}];" + definition);
        state = deviceFromMenu(files.paths(), state, { {}, {}, false });
        QCOMPARE(read(state, tank), QByteArray(R"(["value 1","value 2"])"));
        QCOMPARE(valueAt(state, { QStringLiteral("sealClosed") }), QVariant(true));
    }

    void leavesFilesThatItDidNotMake()
    {
        const QTemporaryDir directory;
        files.setScript("");
        for (const char *name : { "state.json", "DBusController" }) {
            const QString path = directory.filePath(QLatin1String(name));
            QVERIFY(QFile::copy(files.paths().settingsScript, path));
            QVERIFY(makeSimulatedDevice(
                directory.path(), QStringLiteral(PREVIEW), files.paths(), {}, {})
                        .contains(path));
            QVERIFY(QFileInfo(path).isFile() && QFileInfo(path).size() == 0);
            QFile::remove(path);
        }
    }

    void exampleToolAnswersEveryCall()
    {
        const QTemporaryDir directory;
        const QString tool = directory.filePath(QStringLiteral("DBusController"));
        QVERIFY(QFile::copy(QStringLiteral(EXAMPLE_TOOL), tool));
        QVERIFY(QFile::setPermissions(tool, QFile::ReadOwner | QFile::ExeOwner));
        const auto answer = [&](const QStringList &words, const QString &values = {}) {
            return runProgram(tool, values.isEmpty() ? words : words + QStringList { values })
                .output;
        };
        for (const char *words : { "get_menu truck_setup", "get_menu_electronic_seal_status",
                 "get_menu_service_diagnose_spd_interfaces",
                 "get_menu_service_diagnose_io_interfaces",
                 "get_menu_service_diagnose_wetleg_interfaces",
                 "get_menu_service_diagnose_as_interfaces",
                 "get_menu_service_diagnose_tag_interfaces 0",
                 "get_menu_service_diagnose_tag_interfaces 1" }) {
            const QString text = QLatin1String(words);
            const QByteArray list = answer(text.split(QLatin1Char(' ')));
            QVERIFY2(!parseJson(list).value_or(QVariant()).toList().isEmpty(), words);
            QCOMPARE(answer({ text }), list);
        }
        QVERIFY(!answer({ QStringLiteral("--version") }).isEmpty());
        const QString values = QStringLiteral("[false,\"two  blanks, * and \\\\\",1.5]");
        const QStringList group { QStringLiteral("electronic_seal"), QStringLiteral("2") };
        QCOMPARE(answer(QStringList { QStringLiteral("set_menu") } + group, values),
            QByteArray("[true]\n"));
        QCOMPARE(
            answer(QStringList { QStringLiteral("get_menu") } + group), values.toUtf8() + '\n');
    }

    void reportsProblemsAfterTheSession()
    {
        const QDir webRoot(files.paths().webRoot);
        const auto messages = [&] {
            // As luit does it, the program gets its name without the directory.
            return runProgram(QStringLiteral("/bin/bash"),
                { QStringLiteral("-c"),
                    QStringLiteral("exec -a dravikon-preview " PREVIEW
                                   " --idle 1 --web-root \"$0\" 2>&1 > /dev/null"),
                    webRoot.path() })
                .output;
        };
        QVERIFY(messages().startsWith("dravikon-preview: cannot load "));
        QVERIFY(webRoot.mkpath(QStringLiteral("scripts")));
        QVERIFY(QFile::link(
            files.paths().settingsScript, webRoot.filePath(QStringLiteral("scripts/settings.js"))));
        files.setTranslations("{}");
        files.setScript("var = 1");
        QVERIFY(messages().contains("\nerror: ") && messages().endsWith(" [script]\n"));
        files.setScreens("[{css: '1', screens: []}]");
        QCOMPARE(messages(), QByteArray());
    }
};

QTEST_GUILESS_MAIN(PreviewTest)
#include "PreviewTest.moc"