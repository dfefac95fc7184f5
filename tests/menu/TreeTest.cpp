// The tree that a menu definition makes, also one that no web interface should have.
#include "locale/CTranslationHandler.h"
#include "menu/TreeViewItemHandler.h"
#include "render/MenuView.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Rows.h"

// What the definitions below are written with. The tool prints the words that it is asked with, so
// the counts are in the definition.
static const char prelude[] = R"(
function to(css) { return {css: css}; }
function field(name) { return {i18n: name}; }
function screen(css, entries) { return {css: css, screens: entries}; }
function compartments(css, entries) { return {css: css, type: 'compBtn', screens: entries}; }
function meters(css, entries) { return {css: css, type: 'meterBtn', screens: entries}; }
function compartmentCount(answer) { return {css: 'btnParameterTruckSetup', 'ajax-read': answer,
    screens: [{}, field('truck_setup_compartments')]}; }
function meterCount(answer) { return {css: 'btnParameterInterfacesCanFasWm', 'ajax-read': answer,
    screens: {x: field('interfaces_can_fas_wm_fpi')}}; }
var Settings = {setupStructureVersion: 7}; Settings.settings = )";

// "name(children)", with the number of the compartment or meter after the name.
static QString outline(const TreeViewItem &item)
{
    QString text = item.definition.property(QStringLiteral("css")).toString()
        + item.definition.property(QStringLiteral("i18n")).toString();
    if (item.index >= 0)
        text += QString::number(item.index);
    for (const auto &child : item.children)
        text += QLatin1Char(child->position == 0 ? '(' : ' ') + outline(*child);
    return item.children.empty() ? text : text + QLatin1Char(')');
}

static void openAll(TreeViewItem &item)
{
    item.expanded = true;
    item.value = 1;
    for (const auto &child : item.children)
        openAll(*child);
}

class TreeTest : public QObject {
    Q_OBJECT

private slots:
    void builds_data()
    {
        const Rows<QByteArray, QString, QString, QString> add(
            "definition", "tree", "warning", "version");
        const auto row = [&add](const char *name, const char *definition, const char *tree,
                             const char *warning = "", const char *version = "7") {
            add(name, definition, tree, warning, version);
        };
        row("in their order",
            "[screen('r', [field('F'), to('a'), field('G')]), screen('a', [to('a')])]", "r(F a G)",
            "below itself: \"a\"");
        row("unknown reference", "[screen('r', [to('gone'), field('F')])]", "r(F)");
        row("equal names", "[screen('r', [to('a')]), screen('a', [field('F')]), to('a')]",
            "r(a(F))");
        row("number as name", "[screen('r', [to('7')]), {}, to(7)]", "r(7)");
        row("object", "[screen('r', {x: to('a'), y: field('F')}), to('a')]", "r(a F)");
        row("field with entries", "[screen('r', [{i18n: 'F', screens: [field('G')]}])]", "r(F)");
        row("length of an array", "[screen('r', [field('F')]), {css: '', i18n: 'X'}]", "r(F X)");
        row("below itself",
            "[screen('r', [to('a')]), screen('a', [to('b'), field('F')]), screen('b', [to('a')])]",
            "r(a(b F))", "below itself: \"a\"");
        row("root below itself", "[screen('r', [to('r'), field('F')])]", "r(F)", "itself: \"r\"");
        row("two ways", "[screen('r', [to('a'), to('b')]), screen('a', [to('b')]), to('b')]",
            "r(a(b) b)");

        row("compartments",
            "[compartments('c', {}), screen('cModifyDo', [to('a'), field('F')]), "
            "to('a'), compartmentCount('[0, 2]')]",
            "c(cModifyDo0(a0 F0) cModifyDo1(a1 F1))");
        row("meters", "[meters('m', []), screen('mModifyDo', [field('F')]), meterCount('[1]')]",
            "m(mModifyDo0(F0))");
        row("count of the others", "[meters('m', {}), to('mModifyDo'), compartmentCount('[0, 2]')]",
            "m");
        row("negative count", "[meters('m', {}), to('mModifyDo'), meterCount('[-1]')]", "m");
        row("text as count", "[meters('m', {}), to('mModifyDo'), meterCount('[\"1\"]')]",
            "m(mModifyDo0)");
        row("own entries", "[meters('m', [field('F')]), to('mModifyDo'), meterCount('[1]')]",
            "m(F)");
        row("nothing to repeat", "[meters('m', {}), meterCount('[1]')]", "m");
        row("too many", "[compartments('c', {}), to('cModifyDo'), compartmentCount('[0, 1000]')]",
            "c", "compartments.*1000");
        row("beyond 32 bits", "[meters('m', {}), to('mModifyDo'), meterCount('[4294967297]')]", "m",
            "meters.*4294967297");

        row("too few values", "[to('r'), compartmentCount('[7]')]", "r",
            "^!ajaxResult.count\\(\\)$");
        row("no entry for the count", "[screen('btnParameterTruckSetup', [])]",
            "btnParameterTruckSetup", "^!searchIndexFound$");
        row("no binding",
            "[to('r'), screen('btnParameterTruckSetup', [field('truck_setup_compartments')])]", "r",
            "^!ajaxRead.isValid\\(\\)$");

        row("same words for both counts",
            "[meters('m', []), to('mModifyDo'), compartmentCount('[1, 2]'), meterCount('[1, 2]')]",
            "m(mModifyDo0)");

        row("no version", "0; Settings = {settings: [to('r')]}", "r", "", "");
        row("logbook of the web interface", "[to('r')]; datatransferLogbookHandler.x = 1", "r");
        row("exception", "0; throw new Error('say \"no\"')", "",
            R"(^scriptValues.isError\(\)\) "message" "say "no""$)", "/");
        row("syntax error", "= 1", "", R"(^scriptValues.isError\(\)\) "message" "Parse error"$)",
            "/");
        row("screens are no list", "'abc'", "",
            "^The settings script defines no array of screens: \".*settings.js\"$");
        row("screens without an end", "new Array(4294967295)", "");
        row("no screen at the start", "[,, to('r')]", "");
        row("no settings", "0; Settings = null", "", "", "");
        row("screens that throw", "0; Settings = {get settings() { throw 'x' }}", "",
            "^The settings script threw \"x\" in \".*settings.js\" line 11$", "");
        row("entries that are none", "[screen('r', [null, 5,, 's', {i18n: null}])]", "r(   null)");
        row("attributes that throw",
            "[screen('r', [{i18n: 'F', get values() { throw 1 }, inputType: 'dropdown'}])]",
            "r(F)");
        row("values within themselves",
            "[]; var a = []; a.push(a); Settings.settings = "
            "[screen('r', [{i18n: 'F', values: a, dbValues: a, inputType: 'dropdown'}])]",
            "r(F)");
        row("names of all objects",
            "[screen('r', {constructor: {}, toString: to('toString'), length: {}}), "
            "to('toString')]",
            "r( toString)");

        row("many screens",
            "0; var s = Settings.settings = [screen('r', [])];"
            "for (var i = 0; i < 100000; i++) { s.push(to(i)); s[0].screens.push(to(i)) }",
            "100000");
        row("450 references to 450 references",
            "0; var many = [], more = [];"
            "for (var i = 0; i < 450; i++) { many.push(to('a')); more.push(to('b')) }"
            "Settings.settings = [screen('r', many), screen('a', more), to('b')]",
            "200000", "too large");
        row("each below the one before",
            "0; var s = Settings.settings = [screen('r', [to(0)])];"
            "for (var i = 0; i < 5000; i++) s.push(screen(i, [to(i + 1)]))",
            "1000", "too large");
    }

    void builds()
    {
        QFETCH(QByteArray, definition);
        QFETCH(QString, warning);
        FakeDevice device;
        device.setTool("printf %s \"$1\"");
        device.setScript(prelude + definition);
        device.setTranslations("{}");
        CTranslationHandler::setInstanceRoot(device.paths().webRoot);
        TreeViewItemHandler handler(device.paths());
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
        const std::unique_ptr<TreeViewItem> root = handler.build();
        openAll(*root);
        QVector<TreeViewItem *> items;
        handler.numberVisibleItems(*root, items);
        QTEST(items.size() < 100 ? outline(*root) : QString::number(items.size()), "tree");
        QTEST(handler.setupStructureVersion(), "version");
        QCOMPARE(menuLines(handler, *root, 80).size(), items.size());
        QCOMPARE(device.takeCalls().removeDuplicates(), 0);
    }
};

QTEST_GUILESS_MAIN(TreeTest)
#include "TreeTest.moc"
