#include "check/MenuCheck.h"
#include "locale/CTranslationHandler.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/RunProgram.h"

#include <QDir>
#include <QtTest>

// menu() makes a first screen that leads to the given ones, f() one with a field labelled A, edit()
// and list() with a field of their kind; more() adds attributes.
static const char prelude[] =
    R"(function more(o, add) { for (var k in add) o[k] = add[k]; return o; }
function menu() { var all = [].slice.call(arguments);
    return [{css: 'r', screens: all.map(function(s) { return {css: s.css}; })}].concat(all); }
function f(kind, add) { var field = more({i18n: 'a'}, add); if (kind) field.inputType = kind;
    return [{css: 'r', 'ajax-write': 'w', screens: [field]}]; }
function edit(rule, range) { return f('edit', more({validation: rule}, range && {range: range})); }
function list(v, d) { return f('dropdown', more({values: v}, d && {dbValues: d})); }
function a(add) { return more({css: 'a', screens: [{i18n: 'b'}]}, add); }
var read = {'ajax-read': 'x', type: 'btn'}, Settings = {}; Settings.settings = )";

static const char translations[] = R"({"a": "A", "b": "B", "r": "R", "smile": "a☺", "k": "K",
    "compartment": "C", "wide": "0123456789012345678901234567890123456789012345678901"})";

// Screens, and behind each "=>" a fragment of what is reported of them.
static const char table[] =
    R"([{css: 'r'}] | edit('C5') | edit('N3', [0, 500]) | edit('N3', [-99, -99])
edit('N3', [-5000, 5000]) | list(['a', '10'], [1, 2]) | list(['a', 'b']) | f('separator')
f('slider', {min: -1, max: -1, step: 1}) | f('selectlabel', {integer: true}) | menu(a({type: 'btn'}))
f('edit', {remote: 2, validation: 'IPV4'}) | f('edit', {accessLvl: 7}) | menu(a(more({remote: 0}, read)))
f('edit', {i18n: 'none', checkIgnore: 'no-validation untranslated'}) | menu(a({css: "aTODO"}))
menu({css: 'k', type: 'compBtnA', screens: {}, remote: 1}).concat(a({css: 'kModifyDo', type: 'btn'}))
[{css: 'r' => line 9, column 87: Expected `}' | [{css: 'r'}]; foo.bar( => line 9, column 101: Syntax error
[{css: 'r'}]; \n nobody.calls() => line 10: ReferenceError | undefined => no screens | [] => no screens
f('', {i18n: 'none'}); throw 'late' => line 9: late => warning: r: none: the label
menu(a({screens: [{css: 'gone'}]})) => error: a: A: it leads to "gone", which does not exist
[{css: 'r'}, a()] => warning: a: A: nothing leads | [{css: 'r'}, {}] => warning: : : nothing leads
[{css: 'r'}, a({screens: [{css: 'gone'}]})] => nothing leads => error: a: A: it leads to "gone"
menu(a(), a()) => error: a: A: an earlier screen | menu({css: 'r'}) => an earlier => R: it leads back to "r"
menu(a({screens: [{css: 'b'}]})).concat({css: 'b', screens: {x: {css: 'a'}}}) => error: b: A > B: it leads back to "a"
menu({css: 'k', type: 'meterBtnA', remote: 1, screens: []}) => error: k: K: it leads to "kModifyDo"
f('Edit') => error: r: A: "inputType" "Edit" is unknown | f('', {type: 'Btn'}) => "type" "Btn" is unknown
list(['a', 'b'], [1]) => error: r: A: 2 "values" stand against 1 "dbValues" | list(['a'], []) => 1 "values"
list() => without "values" | f('selectlabel') => without "values" | f('slider', {max: 4}) => 0 to 4 by 0
f('slider', {min: 5, max: 4, step: 1}) => error: r: A: a slider from 5 to 4 by 1 cannot move
f('edit') => error: r: A: without "validation" | edit('N5.2', [0, 9]) => the rule "N5.2" is for decimals
edit('FEAT') => works in the web | edit('DATE.HHMM') => works in the web | edit('GPS') => works in the web
edit('IPV4') => works in the web | edit('C') => no whole number | edit('N3x', [0, 9]) => no whole number
edit('n3', [0, 9]) => "n3" is unknown | edit('C-1') => leaves nothing | edit('N3', [9, 0]) => leaves nothing
edit('N3', [1000, 2000]) => leaves nothing | edit('N3') => error: r: A: without "range" the rule "N3"
menu(a({screens: [{inputType: 'boolean', i18n: 'b', accessLvl: 6}]})) => error: a: A: what is edited
menu({css: 'a', 'ajax-read': 'x'}) => warning: a: A: its "ajax-read" is never used, as there is nothing
f('', {'ajax-read': 'x'}) => as there is nothing | menu(a(read)) => warning: a: A: its "ajax-read" is never used, as no
f('', {i18n: 'x%1\n%3'}) => the label "x%1 %3" has no translation => has the character U+000A
list(['none', 'a']) => warning: r: A: the option text "none" | f('', {i18n: ''}) => r: : it has no label
menu(a({screens: [{i18n: 'wide'}]})) => its label reaches 6 columns into | list(['smile']) => character U+263A)";

class MenuCheckTest : public QObject {
    Q_OBJECT

    FakeDevice device;

    static QByteArray run(const QStringList &arguments)
    {
        const ProgramResult result = runProgram(QStringLiteral(CHECKER), arguments);
        return QByteArray::number(result.exitStatus) + ' ' + result.output;
    }

private slots:
    void reports_data()
    {
        device.setTranslations(translations);
        CTranslationHandler::setInstanceRoot(device.paths().webRoot);
        const QRegularExpression separators(QStringLiteral(" [|] |\n"));
        QTest::addColumn<QStringList>("fragments");
        for (const QString &row : QString::fromUtf8(table).split(separators)) {
            const QStringList parts = row.split(QStringLiteral(" => "));
            QTest::newRow(parts[0].toUtf8()) << QStringList(parts.mid(1));
        }
    }
    void reports()
    {
        QFETCH(QStringList, fragments);
        device.setScript(prelude + QByteArray(QTest::currentDataTag()).replace(" \\n ", "\n"));
        LoadedMenu menu(device.paths());
        const QStringList lines = menuProblems(menu);
        const QString report = lines.join(QLatin1Char('\n'));
        QVERIFY2(lines.size() <= fragments.size()
                && std::all_of(fragments.cbegin(), fragments.cend(),
                    [&](const QString &fragment) { return report.contains(fragment); }),
            qPrintable(report));
        QCOMPARE(device.takeCalls(), QStringList());
    }

    void runsAsProgram()
    {
        const QString root = QStringLiteral("--web-root=") + device.paths().webRoot;
        const QString demo = QStringLiteral("--web-root=" DEMO_ROOT);
        const QString tree = QStringLiteral("--tree");
        QCOMPARE(run({ demo }), QByteArray("0 "));
        QVERIFY(run({ demo, tree }).contains("\n             *  Prewarning in percent\n"));
        QCOMPARE(run({ QStringLiteral("--bad") }) + run({ root }), QByteArray("2 2 "));
        QCOMPARE(run({ demo, QStringLiteral("bad") }), QByteArray("2 "));

        QDir directory(device.paths().webRoot);
        device.setScript(prelude + QByteArray("menu(a({screens: [{i18n: 'smile'}]}))"));
        QVERIFY(directory.mkdir(QStringLiteral("scripts"))
            && directory.rename(
                QStringLiteral("settings.js"), QStringLiteral("scripts/settings.js")));
        QCOMPARE(run({ root }).left(19) + run({ root, tree }),
            QByteArray("1 warning: a: A > a0 ->  A\n +   -  a?\n"));
        QVERIFY(directory.remove(QStringLiteral("locales/en/translation.json"))
            && run({ root }) == QByteArray("2 "));
    }
};

QTEST_GUILESS_MAIN(MenuCheckTest)
#include "MenuCheckTest.moc"
