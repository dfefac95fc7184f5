// The tree that a menu definition makes.
#include "menu/TreeViewItemHandler.h"
#include "tests/support/FakeDevice.h"

#include <QtTest>

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

class TreeTest : public QObject {
    Q_OBJECT

private slots:
    void builds_data();
    void builds();
    void asksOnceForEqualWords();
};

void TreeTest::builds_data()
{
    QTest::addColumn<QByteArray>("definition");
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<QString>("version");
    const auto row = [](const char *name, const char *definition, const char *tree,
                         const char *warning = "", const char *version = "7") {
        QTest::newRow(name) << QByteArray(definition) << QString::fromLatin1(tree)
                            << QString::fromLatin1(warning) << QString::fromLatin1(version);
    };
    row("in their order",
        "[screen('r', [field('F'), to('a'), field('G')]), screen('a', [to('a')])]", "r(F a G)",
        "below itself: \"a\"");
    row("unknown reference", "[screen('r', [to('gone'), field('F')])]", "r(F)");
    row("equal names", "[screen('r', [to('a')]), screen('a', [field('F')]), to('a')]", "r(a(F))");
    row("number as name", "[screen('r', [to('7')]), {}, to(7)]", "r(7)");
    row("object", "[screen('r', {x: to('a'), y: field('F')}), to('a')]", "r(a F)");
    row("field with entries", "[screen('r', [{i18n: 'F', screens: [field('G')]}])]", "r(F)");
    row("length of an array", "[screen('r', [field('F')]), {css: '', i18n: 'X'}]", "r(F X)");
    row("below itself",
        "[screen('r', [to('a')]), screen('a', [to('b'), field('F')]), "
        "screen('b', [to('a')])]",
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
    row("own entries", "[meters('m', [field('F')]), to('mModifyDo'), meterCount('[1]')]", "m(F)");
    row("nothing to repeat", "[meters('m', {}), meterCount('[1]')]", "m");
    row("too many", "[compartments('c', {}), to('cModifyDo'), compartmentCount('[0, 1000]')]", "c",
        "compartments.*1000");
    row("beyond 32 bits", "[meters('m', {}), to('mModifyDo'), meterCount('[4294967297]')]", "m",
        "meters.*4294967297");

    row("too few values", "[to('r'), compartmentCount('[7]')]", "r", "^!ajaxResult.count\\(\\)$");
    row("no entry for the count", "[screen('btnParameterTruckSetup', [])]",
        "btnParameterTruckSetup", "^!searchIndexFound$");
    row("no entries", "[to('btnParameterTruckSetup')]", "btnParameterTruckSetup",
        "^!screens.isValid\\(\\)$");
    row("no binding",
        "[to('r'), screen('btnParameterTruckSetup', "
        "[field('truck_setup_compartments')])]",
        "r", "^!ajaxRead.isValid\\(\\)$");

    row("no version", "0; Settings = {settings: [to('r')]}", "r", "", "");
    row("logbook of the web interface", "[to('r')]; datatransferLogbookHandler.x = 1", "r");
    row("exception", "0; throw new Error('say \"no\"')", "",
        R"(^scriptValues.isError\(\)\) "message" "say "no""$)", "/");
    row("syntax error", "= 1", "", R"(^scriptValues.isError\(\)\) "message" "Parse error"$)", "/");
}

void TreeTest::builds()
{
    QFETCH(QByteArray, definition);
    QFETCH(QString, warning);
    FakeDevice device;
    device.setTool("printf %s \"$1\"");
    device.setScript(prelude + definition);
    TreeViewItemHandler handler(device.paths());
    if (!warning.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
    QTEST(outline(*handler.build()), "tree");
    QTEST(handler.setupStructureVersion(), "version");
}

void TreeTest::asksOnceForEqualWords()
{
    FakeDevice device;
    device.setScript(prelude + QByteArray("[compartmentCount('[1, 2]'), meterCount('[1, 2]')]"));
    TreeViewItemHandler handler(device.paths());
    handler.build();
    QCOMPARE(device.takeCalls().size(), 1);
}

QTEST_GUILESS_MAIN(TreeTest)
#include "TreeTest.moc"
