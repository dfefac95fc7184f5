// The console on the simulated device: keys in, screen, tool calls and stored values out. Each file
// in scenarios/ is one session.
#include "pictures/DemoSession.h"

#include <QDir>
#include <QtTest>

#include <Version.h>

namespace {

constexpr int valueColumn = 54; // on 80 columns

} // namespace

class ScenarioTest : public QObject {
    Q_OBJECT

private slots:
    void scenario_data();
    void scenario();

private:
    void check(DemoSession &session, const QString &what, const QVariant &expected);
};

void ScenarioTest::scenario_data()
{
    QTest::addColumn<QVariantMap>("scenario");
    const QDir folder(QStringLiteral(SCENARIOS));
    for (const QString &name : folder.entryList({ QStringLiteral("*.json") }))
        QTest::newRow(qPrintable(name)) << readJson(folder.filePath(name)).toMap();
}

void ScenarioTest::scenario()
{
    QFETCH(QVariantMap, scenario);
    DemoSession session;
    const QVariantList size = scenario.value(QStringLiteral("size")).toList();
    QVERIFY(
        session.run(QStringLiteral(DEMO), size.value(0, 24).toInt(), size.value(1, 80).toInt()));
    const QVariantList steps = scenario.value(QStringLiteral("steps")).toList();
    QVERIFY(!steps.isEmpty());
    for (const QVariant &step : steps) {
        const QVariantMap checks = step.toMap();
        for (auto entry = checks.begin(); entry != checks.end(); ++entry) {
            check(session, entry.key(), entry.value());
            if (QTest::currentTestFailed()) {
                qInfo().noquote() << "in step" << steps.indexOf(step) + 1 << entry.key() << '\n'
                                  << session.terminal().screen().join(QLatin1Char('\n'));
                return;
            }
        }
    }
}

// The keys of a step come up in alphabetical order, so what is done has names before what is seen.
void ScenarioTest::check(DemoSession &session, const QString &what, const QVariant &expected)
{
    const TerminalEmulator &terminal = session.terminal();
    const QVariantMap map = expected.toMap();
    if (what == QLatin1String("do: keys")) {
        session.mark();
        QVERIFY(session.actAll(expected.toStringList()));
    } else if (what == QLatin1String("do: open")) {
        QVERIFY(session.open(expected.toString()));
    } else if (what == QLatin1String("do: resize")) {
        session.resize(expected.toList().value(0).toInt(), expected.toList().value(1).toInt());
        QVERIFY(session.waitFor(
            [&] { return terminal.screen().last().startsWith(QStringLiteral("Drav")); }));
    } else if (what == QLatin1String("see: rows")) {
        for (auto row = map.begin(); row != map.end(); ++row) {
            QString shown = terminal.row(row.key().toInt());
            QCOMPARE(
                shown.replace(consoleVersion, QLatin1String("VERSION")), row.value().toString());
        }
    } else if (what == QLatin1String("see: values")) {
        for (auto row = map.begin(); row != map.end(); ++row) {
            QVERIFY(!session.rowWith(row.key()).isEmpty());
            QCOMPARE(session.rowWith(row.key()).mid(valueColumn), row.value().toString());
        }
    } else if (what == QLatin1String("see: texts")) {
        for (const QString &text : expected.toStringList())
            QVERIFY2(!session.rowWith(text).isEmpty(), qPrintable(text));
    } else if (what == QLatin1String("see: none of")) {
        for (const QString &text : expected.toStringList())
            QVERIFY2(session.rowWith(text).isEmpty(), qPrintable(text));
    } else if (what == QLatin1String("see: colours")) {
        for (auto row = map.begin(); row != map.end(); ++row)
            QCOMPARE(terminal.backgrounds(row.key().toInt()), row.value().toString());
    } else if (what == QLatin1String("see: selected")) {
        QVERIFY2(session.selected().contains(expected.toString()), qPrintable(session.selected()));
    } else if (what == QLatin1String("see: cursor")) {
        const QVariantList place { terminal.cursor().y(), terminal.cursor().x() };
        QCOMPARE(terminal.cursorVisible() ? place : QVariantList(), expected.toList());
    } else if (what == QLatin1String("see: bytes")) {
        QCOMPARE(QString::fromLatin1(session.bytesSinceMark()), expected.toString());
    } else if (what == QLatin1String("then: calls")) {
        QCOMPARE(session.takeCalls().join(QLatin1Char('\n')),
            expected.toStringList().join(QLatin1Char('\n')));
    } else if (what == QLatin1String("then: stored")) {
        for (auto group = map.begin(); group != map.end(); ++group)
            QCOMPARE(session.stored(group.key()), group.value().toList());
    } else {
        QFAIL(qPrintable(QStringLiteral("unknown: ") + what));
    }
}

QTEST_GUILESS_MAIN(ScenarioTest)
#include "ScenarioTest.moc"
