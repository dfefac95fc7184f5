// The diagnose screens as the terminal shows them, cell by cell.
#include "diagnose/DiagnoseScreen.h"
#include "render/FrameComposer.h"
#include "render/Screen.h"
#include "terminal/TerminalEmulator.h"
#include "tests/support/FakeDevice.h"

#include <QtTest>

// Name, interface shown (-1 on entering) and columns; then row, column and text.
static const char screens[] = R"(Spd -1 80; 2 1 SPD IF: 1/4; 3 1 SW Version: 1.2; 4 1 HW Version: B;
1 12 SPD Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>);
6 8 11     -2     1234567089    15     16     17     18     19     20;
7 8 1      2      3      4      5      6      7      8      9      10;
10 8 21     22     0      0      0      0      0      0      0      0;
11 8 11     12     13     14     15     16     17     18     19     20 @
Spd 1 40; 1 0 SPD Interface Diagnose (IF: <Page UP/DOW; 2 1 SPD IF: 2/4; 3 25 bus off @
Spd 2 40; 1 0 SPD Interface Diagnose (IF: <Page UP/DOW; 2 1 SPD IF: 3/4; 3 22 Not Available @
IO -1 80; 1 12 IO Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>); 2 1 IO IF: 1/4;
3 1 SW Version: 1 2; 4 1 HW Version: B; 6 35 1         2; 7 34 31        32;
10 5 1         2         3         4         5         6         7         8;
11 4 41        42        43        44        45        46        47        48 @ Wetleg -1 80;
1 10 Wetleg Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>); 2 1 Wetleg IF: 1/4;
3 1 SW Version: 1.2; 4 1 HW Version: B; 10 33 1            2; 11 33 0            0;
6 7 1            2            3            4            5            6;
7 7 1            0            3            0            5            0 @ As -1 80; 2 1 AS IF: 1/1;
1 22 AS Interface Diagnose (End: 2*<ESC>); 3 1 SW Version: 1.2; 4 1 HW Version: B;
6 14 Ch.                       Prod.                     Sensor; 9 14 2; 9 66 temp;
8 14 1                         O                         fill @ Tag -1 80; 2 1 TAG IF: 1/1;
1 22 TAG Interface Diagnose (End: 2*<ESC>); 3 1 SW Version: 1.2; 4 1 HW Version: B; 6 1 SL: sl;
7 1 Serial: 12; 8 1 List.: li; 9 1 Quality: 4; 10 1 Prod: pr; 11 1 Pitch: 0.5; 12 1 Roll:-1;
13 1 List:l2; 14 1 Status: @ Tag -1 80; 2 1 TAG IF: 1/1; 3 1 SW Version: 1.2; 6 38 ERROR;
1 22 TAG Interface Diagnose (End: 2*<ESC>); 4 1 HW Version: B @ Level -1 80;
1 21 Level Interface Diagnose (End: 2*<ESC>); 2 30 Not Implemented yet.. @ No -1 201 @ No -1 1)";

class DiagnoseTest : public QObject {
    Q_OBJECT

private slots:
    void shows()
    {
        FakeDevice device;
        device.setTool(R"(case $* in
*spd*) echo '[["1.2","B",[11,-2,123456789,"x",15,16,17,18,19,20,21,22]],"bus\\noff"]';;
*_io*) echo '[["1\\t2","B",[31,32],[41,42,43,44,45,46,47,48]]]';; *_tag*0) echo '["1.2","B"]';;
*wetleg*) echo '[["1.2","B",[1,0,3,0,5]]]';; *_as*) echo '["1.2","B",[["fill","O"],["temp"]]]';;
*) [ -e "$0.tag" ] || echo '["sl",12,"li",4,"pr",0.5,-1,"l2"]'; : > "$0.tag";; esac)");
        TreeViewItemHandler handler(device.paths());
        QScriptEngine &engine = handler.scriptHelper().scriptEngine();
        const QString js = QStringLiteral("d={type:'status',css:'btnServiceDiagnose%1Interfaces'}");
        for (const QByteArray &screen : QByteArray(screens).split('@')) {
            QByteArrayList texts = screen.split(';');
            const QByteArrayList words = texts.takeFirst().trimmed().split(' ');
            TreeViewItem item(engine.evaluate(js.arg(QLatin1String(words[0]))), {}, nullptr, -1, 0);
            ViewState state;
            state.currentView = DiagnoseView;
            state.listIndex = words[1].toInt();
            state.optionCount = state.listIndex < 0 ? 0 : 4;
            const int columns = state.termColumns = words[2].toInt();
            state.overlayLines = diagnoseScreen(state, handler, words[0] == "No" ? nullptr : &item);
            TerminalEmulator terminal(24, columns + 9); // would show what is too wide
            Screen output([&terminal](const QByteArray &bytes) { terminal.feed(bytes); });
            output.show(composeFrame(state, QStringLiteral("Quenstadel")), 24, { 1, 1 });
            QVector<QByteArray> expected(24, '|' + QByteArray(columns - 2, ' ') + '|');
            expected[0] = expected[23] = "Quenstadel";
            expected[1] = expected[22] = '+' + QByteArray(columns - 2, '-') + '+';
            for (const QByteArray &text : texts) {
                const QByteArrayList parts = text.trimmed().split(' ');
                const QByteArray cells = QByteArrayList(parts.mid(2)).join(' ').trimmed();
                expected[parts[0].toInt()].replace(parts[1].toInt(), cells.size(), cells);
            }
            for (int row = 0; row < 24; ++row)
                QCOMPARE(terminal.row(row).toLatin1(), expected[row].left(columns).trimmed());
        }
    }
};

QTEST_GUILESS_MAIN(DiagnoseTest)
#include "DiagnoseTest.moc"
