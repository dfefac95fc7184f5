// The tree that a menu definition makes, also one that no web interface should have.
#include "locale/CTranslationHandler.h"
#include "menu/TreeViewItemHandler.h"
#include "render/MenuView.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Rows.h"

// Helpers that the definitions below are written with. The tool prints the words that it is asked
// with, so the counts are in the definition.
static const char helpers[] = R"(
function to(css) { return {css: css}; }
function field(name) { return {i18n: name}; }
function screen(css, entries) { return {css: css, screens: entries}; }
function compartments(css, entries) { return {css: css, type: 'compBtn', screens: entries}; }
function meters(css, entries) { return {css: css, type: 'meterBtn', screens: entries}; }
function compartmentCount(answer) { return {css: 'btnParameterTruckSetup', 'ajax-read': answer,
    screens: [{}, field('truck_setup_compartments')]}; }
function meterCount(answer) { return {css: 'btnParameterInterfacesCanFasWm', 'ajax-read': answer,
    screens: {x: field('interfaces_can_fas_wm_fpi')}}; }
)";

// "name(children)", with the number of the compartment or meter after the name.
static QString outline(const TreeViewItem &item)
{
    QString text =
        item.definition.property("css").toString() + item.definition.property("i18n").toString();
    if (item.index >= 0)
        text += QString::number(item.index);
    for (const auto &child : item.children)
        text += QLatin1Char(child->position == 0 ? '(' : ' ') + outline(*child);
    return item.children.empty() ? text : text + ')';
}

static void openAll(TreeViewItem &item)
{
    item.expanded = true;
    item.value = 1;
    for (const auto &child : item.children)
        openAll(*child);
}

static QString warnings; // of the last tree, each in a line

class TreeTest : public QObject {
    Q_OBJECT

    FakeDevice device;
    std::unique_ptr<TreeViewItemHandler> handler;
    std::unique_ptr<TreeViewItem> root;
    QVector<TreeViewItem *> items; ///< of the opened tree
    QString note; ///< how its last list value was found

    // Builds the tree of a script and opens it.
    void build(const QByteArray &script)
    {
        if (!script.isEmpty())
            device.setScript(helpers + script);
        warnings.clear();
        const auto formerHandler =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
                warnings += text + '\n';
            });
        root.reset();
        handler = std::make_unique<TreeViewItemHandler>(device.paths());
        root = handler->build();
        qInstallMessageHandler(formerHandler);
        openAll(*root);
        items.clear();
        handler->numberVisibleItems(*root, items);
        note = "-";
        QCOMPARE(menuLines(*handler, *root, 80, &note).size(), items.size());
    }

private slots:
    void initTestCase()
    {
        device.setTool("printf %s \"$1\"");
        device.setTranslations("{}");
        CTranslationHandler::setInstanceRoot(device.paths().webRoot);
    }

    void screens()
    {
        const Rows row = [this](const QByteArray &screens, const QString &tree) {
            build("Settings = {settings: [" + screens + "]}");
            QCOMPARE(outline(*root), tree);
            QCOMPARE(warnings, QString());
        };
        row("in their order", "screen('r', [field('F'), to('a'), field('G')]), screen('a', [])",
            "r(F a G)");
        row("unknown reference", "screen('r', [to('gone'), field('F')])", "r(F)");
        row("equal names", "screen('r', [to('a')]), screen('a', [field('F')]), to('a')", "r(a(F))");
        row("number as name", "screen('r', [to('7')]), {}, to(7)", "r(7)");
        row("object", "screen('r', {x: to('a'), y: field('F')}), to('a')", "r(a F)");
        row("field with entries", "screen('r', [{i18n: 'F', screens: [field('G')]}])", "r(F)");
        row("length of an array as a reference", "screen('r', [field('F')]), {css: '', i18n: 'X'}",
            "r(F X)");
        row("two ways", "screen('r', [to('a'), to('b')]), screen('a', [to('b')]), to('b')",
            "r(a(b) b)");
        row("no screen at the start", ",, to('r')", "");
        row("entries that are none", "screen('r', [null, 5,, 's', {i18n: null}])", "r(   null)");
        row("names that all objects have",
            "screen('r', {constructor: {}, toString: to('toString'), length: {}}), to('toString')",
            "r( toString)");
        row("compartments",
            "compartments('c', {}), screen('cModifyDo', [to('a'), field('F')]), to('a'), "
            "compartmentCount('[0, 2]')",
            "c(cModifyDo0(a0 F0) cModifyDo1(a1 F1))");
        row("meters", "meters('m', []), screen('mModifyDo', [field('F')]), meterCount('[1]')",
            "m(mModifyDo0(F0))");
        row("count of the others", "meters('m', {}), to('mModifyDo'), compartmentCount('[0, 2]')",
            "m");
        row("own entries", "meters('m', [field('F')]), to('mModifyDo'), meterCount('[1]')", "m(F)");
        row("nothing to repeat", "meters('m', {}), meterCount('[1]')", "m");
        row("text", "meters('m', {}), to('mModifyDo'), meterCount('[\"1\"]')", "m(mModifyDo0)");
        row("attributes that throw", "screen('r', [{get values() { throw 1 }, i18n: 'F'}])",
            "r(F)");
    }

    void screensThatAreWarnedOf()
    {
        const Rows row = [this](const QByteArray &screens, const QString &tree,
                             const QString &warning) {
            build("Settings = {settings: [" + screens + "]}");
            QCOMPARE(outline(*root), tree);
            QVERIFY2(warnings.contains(QRegularExpression(warning)), qPrintable(warnings));
        };
        row("below itself",
            "screen('r', [to('a')]), screen('a', [to('b'), field('F')]), screen('b', [to('a')])",
            "r(a(b F))", "below itself: \"a\"");
        row("root below itself", "screen('r', [to('r'), field('F')])", "r(F)", "itself: \"r\"");
        row("too many", "compartments('c', {}), to('cModifyDo'), compartmentCount('[0, 1000]')",
            "c", "compartments.*1000");
        row("beyond 32 bits", "meters('m', {}), to('mModifyDo'), meterCount('[4294967297]')", "m",
            "meters.*4294967297");
        row("too few values", "to('r'), compartmentCount('[7]')", "r", "^!ajaxResult.count\\(\\)$");
        row("no entry for the count", "screen('btnParameterTruckSetup', [])",
            "btnParameterTruckSetup", "^!searchIndexFound$");
        row("no screens", "to('btnParameterTruckSetup')", "btnParameterTruckSetup",
            "^!screens.isValid\\(\\)$");
        row("no words",
            "to('r'), screen('btnParameterTruckSetup', [field('truck_setup_compartments')])", "r",
            "^!ajaxRead.isValid\\(\\)$");
    }

    void scripts()
    {
        const Rows row = [this](const QByteArray &script, const QString &tree,
                             const QString &version, const QString &usedList) {
            build(script);
            QCOMPARE(outline(*root), tree);
            QCOMPARE(handler->setupStructureVersion(), version);
            QCOMPARE(note, usedList);
            QCOMPARE(warnings, QString());
        };
        row("version", "Settings = {setupStructureVersion: 7, settings: [to('r')]}", "r", "7", "-");
        row("no version", "Settings = {settings: [to('r')]}", "r", "", "-");
        row("logbook of the web interface",
            "Settings = {settings: [to('r')]}; datatransferLogbookHandler.x = 1", "r", "", "-");
        row("screens without an end", "Settings = {settings: new Array(4294967295)}", "", "", "-");
        const QByteArray field =
            "item = {i18n: 'F', values: a, dbValues: a, inputType: 'dropdown'};"
            "Settings = {settings: [screen('r', [item])]};";
        row("values within themselves", "a = []; a.push(a);" + field, "r(F)", "",
            "hasDBValues: -1");
        row("values nested deeply",
            "for (var inner = [], i = 0; i < 100000; i++) inner = [inner]; a = [inner];" + field,
            "r(F)", "", "hasDBValues: -1");
        row("no database values", "a = [];" + field + "delete item.dbValues", "r(F)", "",
            "!!hasDBValues");
    }

    void scriptsThatFail()
    {
        const Rows row = [this](const QByteArray &script, const QString &version,
                             const QString &warning) {
            build(script);
            QCOMPARE(outline(*root), QString());
            QCOMPARE(handler->setupStructureVersion(), version);
            QVERIFY2(warnings.contains(QRegularExpression(warning)), qPrintable(warnings));
        };
        row("syntax error", "= 1", "/", R"(isError\(\)\) "message" "Parse error")");
        row("error that is thrown",
            "Settings = {settings: [to('r')]}; throw new Error('say \"no\"')", "/",
            R"(isError\(\)\) "message" "say "no"")");
        row("screens that throw", "Settings = {get settings() { throw 'x' }}", "",
            "^The settings script threw \"x\" in \".*settings.js\" line 11");
        row("screens are no list", "Settings = {settings: 'abc'}", "",
            "^The settings script defines no array of screens: \".*settings.js\"$");
        row("null", "Settings = null", "", "defines no array");
        QFile::remove(device.paths().settingsScript);
        row("no file", "", "", "^$");
    }

    void growth()
    {
        const Rows row = [this](const QByteArray &script, int count, const QString &warning) {
            build("var many = [];" + script + "Settings = {settings: screens};");
            QCOMPARE(items.size(), count);
            QCOMPARE(warnings.count('\n'), warning.isEmpty() ? 0 : 1);
            QVERIFY(warnings.contains(warning));
        };
        row("many screens",
            "for (var i = 0; i < 100000; i++) many.push(to(i));"
            "screens = [screen('r', many)].concat(many);",
            100000, "");
        row("as many compartments as may be",
            "screens = [compartments('c', {}), to('cModifyDo'), compartmentCount('[0, 999]')];",
            999, "");
        row("450 references to 450 references",
            "for (var i = 0, more = []; i < 450; i++) { many.push(to('a')); more.push(to('b')); }"
            "screens = [screen('r', many), screen('a', more), to('b')];",
            200000, "too large");
        row("fields",
            "for (var i = 0; i < 300000; i++) many.push(field('F')); screens = [screen('r', "
            "many)];",
            200000, "too large");
        row("references to nothing",
            "screens = [screen('r', [])];"
            "for (var i = 0; i < 999; i++) { many.push(to('gone')); screens.push(screen(i, many)); "
            "screens[0].screens.push(to(i)); }",
            200, "too large");
        row("references to itself",
            "for (var i = 0; i < 999; i++) many.push(to('r')); screens = [screen('r', many)];", 0,
            "below itself");
        row("each below the one before",
            "screens = [screen('r', [to(0)])];"
            "for (var i = 0; i < 5000; i++) screens.push(screen(i, [to(i + 1)]));",
            1000, "too large");
    }
};

QTEST_GUILESS_MAIN(TreeTest)
#include "TreeTest.moc"
