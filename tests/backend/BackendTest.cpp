#include "device/BackendTool.h"
#include "menu/TreeViewItemHandler.h"
#include "tests/support/FakeDevice.h"

#include <QtTest>

#include <csignal>

// What the tool does, and what is understood of it: a list, with "yes" when it confirms a write.
static const char answers[] = R"(echo [true] => [true] yes | echo '[1,"ä"]' => [1,"\u00e4"] yes
echo '[0.5,{"a":[null]}]' => [0.5,{"a":[null]}] yes | printf [3]; kill -SEGV $$ => [3] yes
echo x >&2; echo [4]; exit 1 => [4] yes | echo [5]; exec >&-; sleep 0.1 => [5] yes
echo '["i18n_wm_false"]' => ["i18n_wm_false"] yes | echo [false] => [false] | echo [0] => [0]
echo [] => [] | echo '{"a":1}' => [] | echo true => [] | : => | printf oops => oops
printf [1, => [1, | printf '[1] x' => [1] x | printf '\377' => �)";

static bool isAlive(pid_t process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    return file.open(QIODevice::ReadOnly) && !file.readAll().contains(") Z ");
}

class BackendTest : public QObject {
    Q_OBJECT

    FakeDevice device;
    TreeViewItemHandler handler { device.paths() };

    QByteArray calls() { return device.takeCalls().join(QLatin1Char(' ')).toUtf8(); }

private slots:
    void understandsAnswers()
    {
        ScriptHelper &script = handler.scriptHelper();
        const QString r = QStringLiteral("r");
        for (const QByteArray &row : QByteArray(answers).replace('\n', '|').split('|')) {
            const QByteArray answer = row.mid(row.indexOf("=>") + 2).trimmed();
            const bool isList = answer.endsWith("yes") || answer.endsWith(']');
            device.setTool(row.left(row.indexOf("=>")));
            for (int call = 0; call < 5 && !isList; ++call)
                QTest::ignoreMessage(QtDebugMsg,
                    "byteArray2VariantList: parsing failed. Input was:  \"" + answer + '"');
            const QVariantList values = script.read({ r }, true);
            const auto json = ScriptHelper::variantListToJson(values).toUtf8();
            QStringList arguments(QStringLiteral("w  \"w"));
            const bool written = script.write(arguments, values);
            QCOMPARE(json + (written ? " yes" : ""), isList ? answer : "[]");
            script.read({ r }, false);
            script.read({ r, QString() }, false);
            QCOMPARE(script.read({ r, QString() }, true), values);
            handler.updateAccessLevel();
            QCOMPARE(handler.accessLevel(), answer.contains("i18n_wm_false") ? 6 : 4);
            QCOMPARE(calls(), "r w  \"w|" + json + " r| r| get_menu_electronic_seal_status");
        }
    }

    void opensReadsAndWrites()
    {
        const QScriptValue list = handler.scriptHelper().scriptEngine().evaluate(QStringLiteral(R"([
            {'ajax-read': 'g  a', 'ajax-write': 'set  all'}, {inputType: 'label'}, {}, {inputType:
            'separator'}, {inputType: 'button'}, {'ajax-read': 'g b'}, {'ajax-read': 'g c'}])"));
        TreeViewItem root({}, {}, nullptr, -1, 0);
        TreeViewItem &c = root.addChild(list.property(6), {}, -1);
        TreeViewItem &a = root.addChild(list.property(0), {}, -1);
        for (const quint32 field : { 1, 2, 3, 4 })
            a.addChild(list.property(field), {}, -1);
        TreeViewItem &b = a.addChild(list.property(5), {}, 2);
        b.addChild({}, {}, -1);
        device.setTool("echo '[2, \"b\", 1.5, 3]'");
        QByteArray log;
        for (TreeViewItem *item : { &b, &a, &b, &c, &a }) { // b at first below a closed one
            log += handler.toggleItem(root, item, false) ? "+ " : "- ";
            handler.refreshValues(root);
            log += calls().replace("get_menu_electronic_seal_status", "seal") + ';';
        }
        QCOMPARE(
            log, QByteArray("- seal;+ g|a seal;+ g|b|2 seal g|a;+ g|c seal g|a g|b|2;- seal;"));
        QVERIFY(!b.expanded && c.expanded);
        QVERIFY(handler.writeItemValues(b) && !handler.writeItemValues(*b.children[0]));
        QCOMPARE(calls(), QByteArray("set|all|2|[2,\"b\",1.5]"));
        handler.assignItemValues(a, { qQNaN() });
        QVERIFY(!handler.writeItemValues(b));
        QCOMPARE(handler.collectItemValues(a).mid(1), QVariantList({ QStringLiteral("b"), 1.5 }));
    }

    void killsWhatHangs()
    {
        for (const bool hangs : { true, false }) {
            device.setTool(hangs ? "sleep 60 & echo $$ $!; wait" : "sleep 60 & echo $$ $!");
            const auto pids =
                BackendTool::run(device.paths().backendTool, {}, hangs ? 2000 : 30000).split(' ');
            const pid_t tool = pids.value(0).toInt();
            const pid_t child = pids.value(1).toInt();
            QVERIFY(tool > 1 && child > 1 && kill(tool, 0) != 0);
            QTRY_COMPARE(isAlive(child), !hangs);
            kill(child, SIGKILL);
        }
    }

    void takesWhatItCan()
    {
        device.setTool("head -c $1 /dev/zero");
        QCOMPARE(handler.scriptHelper().run({ QStringLiteral("16777216") }).size(), 16777216);
        QCOMPARE(handler.scriptHelper().run({ QStringLiteral("16777217") }).size(), 0);
        signal(SIGCHLD, SIG_IGN);
        QCOMPARE(handler.scriptHelper().run({ QStringLiteral("5") }).size(), 5);
        signal(SIGCHLD, SIG_DFL);
        device.setScript("not executable");
        for (const char *name : { "/settings.js", "/locales", "/none" })
            QCOMPARE(
                BackendTool::run(device.paths().webRoot + QLatin1String(name), {}), QByteArray());
    }
};

QTEST_GUILESS_MAIN(BackendTest)
#include "BackendTest.moc"
