#include "menu/TreeViewItemHandler.h"
#include "tests/support/FakeDevice.h"

#include <QtTest>

// menu() makes of "r a F; a" the screens r, with a reference and a field, and a. Behind them stand
// those that tell the counts; what they ask the tool for is what it answers.
static const char prelude[] = R"(function menu(text, compartments, meters) {
    return text.split('; ').map(function(line) {
        var words = line.split(' '), css = words.shift(), types = {k: 'compBtn', m: 'meterBtn'};
        return {css: css, type: types[css], screens: words.map(function(word) {
            return word < 'a' ? {i18n: word} : {css: word}; })};
    }).concat({css: 'btnParameterTruckSetup', 'ajax-read': compartments || '[0, 0]',
        screens: [{}, {i18n: 'truck_setup_compartments'}]}, {css: 'btnParameterInterfacesCanFasWm',
        'ajax-read': meters || '[0]', screens: {a: {i18n: 'interfaces_can_fas_wm_fpi'}}});
} var Settings = {setupStructureVersion: 7, settings: )";

// Settings, the version and the tree that they make, a warning.
static const char table[] = R"( =>   | menu('r F a G; a H b; b') => 7 r(F a(H b) G)
menu('r a gone A; a F; a G') => 7 r(a(F) A) | menu('r a; a b F; b a') => 7 r(a(b F)) => "a"
[{css: 'r', screens: {x: {css: '7'}, y: {i18n: 'F'}}}, {}, {css: 7}] => 7 r(7 F)
[{css: 'r', screens: [{i18n: 'F', screens: [{i18n: 'G'}]}]}] => 7 r(F)
menu('r a F; a').concat({css: '', i18n: 'X'}) => 7 r(a(X) F X) | menu('r r F') => 7 r(F) => "r"
menu('m; mModifyDo a F; a', '', '[2]') => 7 m(mModifyDo0meterBtn(a0 F0) mModifyDo1meterBtn(a1 F1))
menu('r k m; k; m; kModifyDo', '[2, 1]', '[2, 1]') => 7 r(k(kModifyDo0compBtn) m)
menu('r k m; k F; m; kModifyDo; mModifyDo', '[7, "1"]', '[-1]') => 7 r(k(F) m)
menu('r k; k; kModifyDo', '[0, 1000]') => 7 r(k) => compartments.*1000
menu('r m; m; mModifyDo', '', '[4294967297]') => 7 r(m) => meters.*4294967297
menu('r k; k; kModifyDo', '[7]') => 7 r(k) => ^!ajaxResult.count\(\)$
menu('btnParameterTruckSetup') => 7 btnParameterTruckSetup => ^!searchIndexFound$
[{css: 'btnParameterTruckSetup'}] => 7 btnParameterTruckSetup => ^!screens.isValid\(\)$
menu('r').map(function(s) { delete s['ajax-read']; return s; }) => 7 r => ^!ajaxRead.isValid\(\)$
[]}; throw new Error('no'); x = { => /  => ^scriptValues.isError\(\)\) "message" "no"$
[]}; = { => /  => ^scriptValues.isError\(\)\) "message" "Parse error"$
[]}; Settings = {settings: [{css: 'r'}] =>  r | []}; datatransferLogbookHandler.x = { => 7 
menu('r' + Array(451).join(' a') + '; a' + Array(451).join(' b') + '; b') => 7 200000 => large)";

/// "name(children)", an index behind the name.
static QString outline(const TreeViewItem &item)
{
    QString text = item.definition.property(QStringLiteral("css")).toString();
    text += item.definition.property(QStringLiteral("i18n")).toString();
    text += item.index < 0 ? QString() : QString::number(item.index);
    text += item.referringEntry.property(QStringLiteral("type")).toString();
    for (const auto &child : item.children)
        text += QLatin1Char(child->position == 0 ? '(' : ' ') + outline(*child);
    return item.children.empty() ? text : text + QLatin1Char(')');
}

class TreeTest : public QObject {
    Q_OBJECT

private slots:
    void builds()
    {
        for (const QByteArray &row : QByteArray(table).replace('\n', '|').split('|')) {
            const QStringList parts = QString::fromUtf8(row.trimmed()).split(QStringLiteral("=>"));
            FakeDevice device;
            device.setTool("printf %s \"$1\"");
            if (!parts[0].isEmpty())
                device.setScript(prelude + parts[0].toUtf8() + "};");
            TreeViewItemHandler handler(device.paths());
            if (parts.size() > 2)
                QTest::ignoreMessage(QtWarningMsg, QRegularExpression(parts[2].trimmed()));
            const QString tree = outline(*handler.build());
            QVERIFY(row.count("[2, 1]") < 2 || device.takeCalls().size() == 1);
            const int items = tree.count(QLatin1Char(' ')) + tree.count(QLatin1Char('('));
            const QString made = items > 99 ? QString::number(items) : tree;
            QCOMPARE((handler.setupStructureVersion() + QLatin1Char(' ') + made).trimmed(),
                parts[1].trimmed());
        }
    }
};

QTEST_GUILESS_MAIN(TreeTest)
#include "TreeTest.moc"
