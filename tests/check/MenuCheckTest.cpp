#include "check/MenuCheck.h"
#include "check/FileFault.h"
#include "locale/CTranslationHandler.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/RunProgram.h"

#include <QDir>
#include <QtTest>

static const char translations[] = R"({"a": "A", "b": "B", "r": "R", "smile": "a☺", "k": "K",
    "compartment": "C", "btnParameterTruckSetup": "T", "btnParameterInterfacesCanFasWm": "M",
    "truck_setup_compartments": "N", "interfaces_can_fas_wm_fpi": "N",
    "wide": "0123456789012345678901234567890123456789012345678901"})";

class MenuCheckTest : public QObject {
    Q_OBJECT

    FakeDevice device;
    QByteArray faults;

    QStringList problemsOf(const QByteArray &script)
    {
        device.setScript(script);
        LoadedMenu menu(device.paths());
        return menuProblems(menu);
    }

    // Severity and name of each.
    static QStringList namesOf(const QStringList &problems)
    {
        QStringList names;
        for (const QString &problem : problems) {
            names += problem.section(QLatin1Char(':'), 0, 0) + QLatin1Char(' ')
                + problem.section(QLatin1Char('['), -1).chopped(1);
        }
        return names;
    }

    static QByteArray run(const QStringList &arguments)
    {
        const ProgramResult result = runProgram(QStringLiteral(CHECKER), arguments);
        return QByteArray::number(result.exitStatus) + ' ' + result.output;
    }

private slots:
    void initTestCase()
    {
        device.setTranslations(translations);
        CTranslationHandler::setInstanceRoot(device.paths().webRoot);
        QFile file(QStringLiteral(FAULTS));
        QVERIFY(file.open(QIODevice::ReadOnly));
        faults = file.readAll();
    }

    void findsFaults_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("problems");
        QTest::addColumn<QString>("says");
        QScriptEngine engine;
        const QScriptValue rows =
            engine.evaluate(QString::fromUtf8(faults) + QLatin1String(";rows"));
        const int count = rows.property(QStringLiteral("length")).toInt32();
        QVERIFY2(count > 0, qPrintable(rows.toString()));
        for (int number = 0; number < count; ++number) {
            const QVariantMap row = rows.property(quint32(number)).toVariant().toMap();
            QTest::newRow(row[QStringLiteral("name")].toByteArray())
                << number
                << row[QStringLiteral("problems")].toStringList().join(QLatin1String(", "))
                << row[QStringLiteral("says")].toString();
        }
    }
    void findsFaults()
    {
        QFETCH(int, number);
        QFETCH(QString, problems);
        QFETCH(QString, says);
        const QStringList lines = problemsOf(
            faults + "\nSettings.settings = rows[" + QByteArray::number(number) + "].screens;");
        const QString report = lines.join(QLatin1Char('\n'));
        QCOMPARE(namesOf(lines).join(QLatin1String(", ")), problems);
        QVERIFY2(report.contains(says), qPrintable(report));
        QCOMPARE(device.takeCalls(), QStringList());
    }

    void findsFaultsOfScripts_data()
    {
        QTest::addColumn<QString>("report");
        const auto row = [](const char *script, const char *report) {
            QTest::newRow(script) << QString::fromLatin1(report);
        };
        row("Settings = {settings: [{css: 'r'}], setupStructureVersion: 1}", "");
        row("Settings = {settings: [{css: 'r'}]}", "it has no \"setupStructureVersion\"");
        row("Settings = {settings: [{css: 'r'}], checkIgnore: 'no-version'}", "");
        row("Settings = {\nsettings: [", "line 2, column 11: Syntax");
        row("foo.bar(", "line 1, column 8: Syntax error");
        row("Settings = {settings: [{css: 'r'}]};\nnobody.calls()", "line 2: ReferenceError");
        row("Settings = {settings: [{css: 'r'}]}; throw 'late'", "line 1: late");
        row("Settings = {}", "defines no screens");
    }
    void findsFaultsOfScripts()
    {
        QFETCH(QString, report);
        const QStringList lines = problemsOf(QTest::currentDataTag());
        QCOMPARE(lines.size(), report.isEmpty() ? 0 : 1);
        QVERIFY2(lines.join(QString()).contains(report), qPrintable(lines.join(QString())));
    }

    void explainsFiles_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::addColumn<QString>("fault");
        const auto row = [](const char *name, const QByteArray &table, const char *fault) {
            QTest::newRow(name) << table << QString::fromLatin1(fault);
        };
        row("good", R"({"a": "A"})", "");
        row("stray comma", "{\"a\": \"A\",\n \"\xc3\xa4\": \"B\",}",
            ": line 2, column 11: Missing a name");
        row("byte order mark", "\xef\xbb\xbf{}", "byte order mark");
        row("array", "[]", "is no JSON object");
        row("too deep", QByteArray(600, '['), "column 513: A number is too large, or the nesting");
        row("zero byte", QByteArray("{\0}", 3), "line 1, column 2: ");
    }
    void explainsFiles()
    {
        QFETCH(QByteArray, table);
        QFETCH(QString, fault);
        device.setScript("");
        device.setTranslations(table);
        const QString found = fileFault(device.paths());
        device.setTranslations(translations);
        QCOMPARE(found.isEmpty(), fault.isEmpty());
        QVERIFY2(found.contains(fault), qPrintable(found));
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
        device.setScript(
            "Settings = {setupStructureVersion: 1, settings: [{css: 'r', screens: "
            "[{css: 'a'}]}, {css: 'a', 'ajax-read': 'r', screens: [{i18n: 'smile'}]}]}");
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
