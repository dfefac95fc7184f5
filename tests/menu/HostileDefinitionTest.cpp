// Definitions that no web interface should have: none may harm the console.
#include "menu/TreeViewItemHandler.h"
#include "render/MenuView.h"
#include "tests/support/FakeDevice.h"

#include <QtTest>

namespace {

/// The number of lines that the menu of the script has with everything open.
int lineCount(const QByteArray &script)
{
    FakeDevice device;
    device.setScript(script);
    TreeViewItemHandler handler(device.paths());
    const std::unique_ptr<TreeViewItem> root = handler.build();
    const std::function<void(TreeViewItem &)> open = [&](TreeViewItem &item) {
        item.expanded = true;
        item.value = 1;
        for (const auto &child : item.children)
            open(*child);
    };
    open(*root);
    QVector<TreeViewItem *> items;
    handler.numberVisibleItems(*root, items);
    const int count = menuLines(handler, *root, 80).size();
    return items.size() == count ? count : -1;
}

} // namespace

class HostileDefinitionTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    }
    void definitions();
};

void HostileDefinitionTest::definitions()
{
    const QPair<const char *, int> rows[] = {
        { "", 0 },
        { "/* a comment that is cut o", 0 },
        { "var Settings = {setti", 0 },
        { "var Settings = {settings: [{css: 'a te", 0 },
        { "var Settings = {settings: [{screens: [{min: 1.", 0 },
        { "var Settings = {settings: [{screens: [{i18n: 'a'}]}]", 0 },
        { "var Settings = {settings: [{screens: [{i18n: 'a'}]}]}; function cut(", 0 },
        { "var Settings = {settings: [{screens: [{i18n: 'a'}]}]}; /cu", 0 },
        { "var Settings = {settings: [{screens: [{i18n: 'a'}]}]}; missing()", 0 },
        { "var Settings = null", 0 },
        { "var Settings = {settings: 5}", 0 },
        { "var Settings = {settings: 'abc'}", 0 },
        { "var Settings = {settings: [,,{css: 'a'}]}", 0 },
        { "var Settings = {settings: new Array(4294967295)}", 0 },
        { "var Settings = {get settings() { throw new Error('x') }}", 0 },
        { "var Settings = {settings: [{screens: [null, 5,, 's', {i18n: null}]}]}", 4 },
        { "var Settings = {settings: [{screens: [{get i18n() { throw 1 }, get values() { throw 2 "
          "}, inputType: 'dropdown'}]}]}",
            1 },
        { "var a = []; a.push(a); var Settings = {settings: [{screens: [{values: a, dbValues: a, "
          "inputType: 'dropdown'}]}]}",
            1 },
        { "var Settings = {settings: [{screens: {constructor: {}, toString: {css: 'toString'}, "
          "length: {}}}, {css: 'toString'}]}",
            2 },
        { "var Settings = {settings: [{screens: [{values: {length: 4e9}, dbValues: [], inputType: "
          "'dropdown'}]}]}",
            1 },
        { "var s = [{screens: []}]; for (var i = 0; i < 100000; i++) { s.push({css: i}); "
          "s[0].screens.push({css: i}) }"
          " var Settings = {settings: s}",
            100000 },
        // 450 references to a screen with 450 references.
        { "var s = [{screens: []}, {css: 'a', screens: []}, {css: 'b'}]; for (var i = 0; i < 450; "
          "i++) { s[0].screens.push({css: 'a'}); s[1].screens.push({css: 'b'}) }"
          " var Settings = {settings: s}",
            200000 },
        // A chain of screens, each below the one before it.
        { "var s = [{screens: [{css: 0}]}]; for (var i = 0; i < 5000; i++) s.push({css: i, "
          "screens: [{css: i + 1}]});"
          " var Settings = {settings: s}",
            1000 },
    };
    for (const auto &row : rows)
        QVERIFY2(lineCount(row.first) == row.second, row.first);
}

QTEST_GUILESS_MAIN(HostileDefinitionTest)
#include "HostileDefinitionTest.moc"
