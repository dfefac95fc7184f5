// Keys that come faster than a line of 9600 baud shows what they do, in simulated time.
#include "app/TerminalGui.h"
#include "locale/CTranslationHandler.h"
#include "terminal/ScreenNotation.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Rows.h"
#include "tests/support/SimulatedLine.h"

#include <cstdio>

class HeldKeyTest : public QObject {
    Q_OBJECT

    using Keys = QVector<int>;
    FakeDevice device;

    static QByteArray answer(const QStringList &call)
    {
        if (call.first().startsWith("get_menu_service"))
            return R"([["1.0","A",[1,2,3]],["2.0","B",[4,5]],["3.0","C",[6]],"off"])";
        QByteArray values = R"(["name")";
        for (int i = 2; i <= 40; ++i)
            values += ",\"value " + QByteArray::number(i) + '"';
        return values + ']';
    }

    /// Presses the keys at the given distance, and does what the session does in between: tells the
    /// screen of each wait, and again after the time that it asks for.
    static void press(TerminalGui &gui, SimulatedLine &line, const Keys &keys, qint64 distanceUs)
    {
        for (const int key : keys) {
            gui.shownScreen().afterWait();
            gui.processKeyEvent(Qt::Key(key));
            wait(gui, line, line.nowUs + distanceUs);
        }
    }

    /// Lets the time pass until `endUs`, but no further than to the last byte if that is sooner
    /// and nothing is left to be shown.
    static void wait(TerminalGui &gui, SimulatedLine &line, qint64 endUs)
    {
        qint64 waitMs = gui.shownScreen().beforeWait(false);
        while (waitMs != -1 && line.nowUs + waitMs * 1000 < endUs) {
            line.nowUs += waitMs * 1000;
            waitMs = gui.shownScreen().beforeWait(false);
        }
        line.nowUs = endUs;
    }

private slots:
    void initTestCase()
    {
        // A terminal that started the test has its own size.
        QVERIFY(std::freopen("/dev/null", "r", stdin));
        CTranslationHandler::setInstanceRoot(device.paths().webRoot);
        device.setTranslations("{}");
        device.setScreens(R"([{screens: [{css: 'values', remote: 1},
            {css: 'btnServiceDiagnoseSpdInterfaces', remote: 1}, {css: 'labels', remote: 1}]},
            {css: 'values', 'ajax-read': 'get', screens: lines(40)},
            {css: 'labels', screens: lines(200)},
            {css: 'btnServiceDiagnoseSpdInterfaces', type: 'status'}])",
            R"(function lines(count) {
                var made = [{i18n: 'line 1', inputType: 'edit', validation: 'C30'}];
                for (var i = 2; i <= count; ++i) made.push({i18n: 'line ' + i});
                return made;
            })");
    }

    void endsWithItsRelease()
    {
        const Rows row = [this](const Keys &before, const Keys &held, const QString &shown) {
            constexpr qint64 secondUs = 1000000;
            SimulatedLine line;
            TerminalGui gui(device.paths(), line, answer);
            gui.initTerminal();
            press(gui, line, before, 10 * secondUs);
            press(gui, line, held, secondUs / 30);
            const qint64 releaseUs = line.nowUs;
            wait(gui, line, releaseUs + 60 * secondUs);
            const qint64 runOnMs = (line.lastByteUs - releaseUs) / 1000;
            QVERIFY2(runOnMs <= 400, qPrintable(QString("runs on for %1 ms").arg(runOnMs)));
            const QString screen = notationOfScreen(line.terminal).join('\n');
            QVERIFY2(screen.contains(shown), qPrintable(screen));
        };
        const Keys openValues { Qt::Key_Return };
        const Keys openField { Qt::Key_Return, Qt::Key_Down, Qt::Key_Return };
        const Keys openInterfaces { Qt::Key_Down, Qt::Key_Return };
        const Keys openLabels { Qt::Key_Down, Qt::Key_Down, Qt::Key_Return };
        const Keys thereAndBack = Keys(30, Qt::Key_PageDown) + Keys(30, Qt::Key_PageUp);
        row("Down", openLabels, Keys(60, Qt::Key_Down), " :     -  line 60  <- magenta");
        row("PgDn", openValues, Keys(60, Qt::Key_PageDown), " :->  labels  <- magenta");
        row("typing", openField, Keys(20, 'x'), "namexxxxxxxxxxxxxxxxxxxx ");
        row("PgDn on an interface screen", openInterfaces, Keys(60, Qt::Key_PageDown),
            ":|SPD IF: 4/4");
        row("PgDn and PgUp there", openInterfaces, thereAndBack, ":|SPD IF: 1/4");
    }

    void showsKeysThatComeWithoutAPause()
    {
        SimulatedLine line;
        Screen screen(line);
        screen.show({ { 0, "text" } }, 1, {});
        for (const int written : { 0, 1 }) {
            line.nowUs = 99999 + written;
            screen.beforeWait(true);
            QCOMPARE(line.writes, written);
        }
    }

    // A write to it would block, and no key would end the session.
    void writesNothingToAStoppedLine()
    {
        SimulatedLine line;
        {
            TerminalGui gui(device.paths(), line, answer);
            gui.initTerminal();
            press(gui, line, { Qt::Key_Down }, 10000000);
            const int writes = line.writes;
            line.isStopped = true;
            press(gui, line, { Qt::Key_Up, Qt::Key_Return, Qt::Key_Down }, 10000000);
            QCOMPARE(line.writes, writes);
            line.isStopped = false;
            wait(gui, line, line.nowUs + 10000000);
            QCOMPARE(line.writes, writes + 1);
            QVERIFY(line.terminal.row(2).contains("line 1"));
            line.isStopped = true;
            press(gui, line, { Qt::Key_Down }, 0);
        }
        // Of the end, only the leave sequence is written.
        QCOMPARE(line.terminal.screen().join(QString()), QString());
    }
};

QTEST_GUILESS_MAIN(HeldKeyTest)
#include "HeldKeyTest.moc"
