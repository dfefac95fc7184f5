// The value dialogs: what they show, how the keys move them, what they give the item.
#include "locale/CTranslationHandler.h"
#include "render/FrameComposer.h"
#include "render/ValueDialog.h"
#include "tests/support/FakeDevice.h"

#include <QtTest>

// Columns, kind and attributes of an item, its value as "is"; column, width and title of its box,
// its lines 2 to 4 with red (1), green (2) or highlighted (5) text up to the next ">"; the value
// given at once, a step down and right of it, and nine steps back, in an edit field the cursor.
static const char dialogs[] = R"(
80 dropdown values:['a','b','c'],dbValues:[5,'x',7],is:'x' =
20 40 Select new Value >|a| >|<5mTwo>| >|c| Qx q7 q5;
81 dropdown values:['a','b'],dbValues:[5,6],is:8 = 20 40 Select new Value >|| >|| >|a| i0 q5 q5;
82 dropdown values:['a','b'],is:'b' = 21 41 Select new Value >|| >|<5ma>| >|Two| i0 i1 i0;
20 dropdown values:['','abcdefghi'],is:2 = 2 11 Select new Value >|abcdefghi| >|| >|| i2 i1 i0;
3 boolean is:true = 0 2 Select new Value >fal >t<5mru> >|| btrue btrue bfalse;
80 slider max:10,step:9,is:5 =
20 40 Set new Value >|5| >|-----------------|--------------------| >|| i5 i11 i0;
24 slider max:10,step:1,is:14 = 6 12 Set new Value >|14| >|----------| >|| i14 i11 i2;
24 slider min:-10,max:9,step:6,is:7 = 6 12 Set new Value >|-1| >||---------| >|| i-1 i5 i-10;
24 slider max:-1,step:1,is:3 = 6 12 Set new Value >|3| >||---------| >|| i3 i0 i0;
24 slider min:10,max:0,step:1,is:5 = 6 12 Set new Value >|5| >|-----|----| >|| i5 i10 i10;
80 edit validation:'C38',is:'abc' = 20 40 Enter new Value 38>||>|<2mabc>|>|| Qabc25 Qabc25 Qabc22;
80 edit validation:'C3',is:'abcd' = 20 40 Enter new Value 3 >|| >|<1mabc>d| >|| 44 43 40;
4 edit validation:'N3',is:'4\t2' = 0 4 Enter new Value 3 >|| >|<1m42> >|| 4 4 3;
80 button is:1 = 20 40 Select next Step >|| >|<5mstart Dravikon Menu>| >|continue to local shell|)";

class DialogTest : public QObject {
    Q_OBJECT

private slots:
    void showsMovesAndGives()
    {
        FakeDevice device;
        device.setTranslations(R"({"b":"Two"})");
        CTranslationHandler::setInstanceRoot(device.paths().webRoot);
        TreeViewItemHandler handler { DevicePaths() };
        QScriptEngine &engine = handler.scriptHelper().scriptEngine();
        for (const QByteArray &row : QByteArray(dialogs).simplified().split(';')) {
            const QByteArrayList words = row.trimmed().split(' ');
            const QByteArray script = "d = {inputType:'" + words[1] + "'," + words[2] + '}';
            TreeViewItem item(engine.evaluate(QLatin1String(script)), {}, nullptr, -1, 0);
            item.value = item.definition.property(QStringLiteral("is")).toVariant();
            ViewState state;
            state.currentView = EditView;
            state.termColumns = words[0].toInt();
            state.resetDialog();
            state.visibleItems.push_back(&item);
            state.menuLines.insert(0, QStringLiteral("x"));
            for (int drawing = 0; drawing < 2; ++drawing)
                state.overlayLines = handler.inputKind(item) == ButtonInput
                    ? startMenu(state)
                    : valueDialog(state, handler, item);
            Frame frame = composeFrame(state, QString());
            QCOMPARE(frame[1], Escape::highlight + QStringLiteral("x\x1b[K\x1b[0m"));
            QByteArray seen = QByteArray::number(frame[15].indexOf(QChar(27)))
                + QByteArray::number(state.overlayLines[6].size())
                + state.overlayLines[0].toLatin1().replace('-', "").replace('+', "");
            for (const int line : { 11, 12, 13 })
                seen += frame[line].toLatin1().chopped(7);
            seen.replace("\x1b[0m", ">").replace("\x1b[4", "<");
            for (const int steps : { 1, -9, 0 }) {
                if (commitValue(state, handler, 0))
                    seen += QByteArray(item.value.typeName(), 1) + item.value.toByteArray();
                if (words[1] == "edit")
                    seen += QByteArray::number(editPosition(state, handler).column);
                moveSelection(state, handler, false, steps);
                moveSelection(state, handler, true, steps);
            }
            QCOMPARE(seen.replace(' ', ""), row.mid(row.indexOf("= ") + 2).replace(' ', ""));
        }
    }
};

QTEST_GUILESS_MAIN(DialogTest)
#include "DialogTest.moc"
