// Lines and boxes: what a terminal shows of what the operations make.
#include "render/Frame.h"
#include "render/ForeignText.h"
#include "terminal/TerminalEmulator.h"

#include <QtTest>

// Operation, numbers, text; what the terminal shows, "_" for a blank, and the backgrounds.
static const char table[] = R"(replace 1 XY 0 = aXYbc; replace 5 X 0 = abc__X; replace 2 X 9 = abX;
replace -4 X 2 = Xc; replace 1 XY 1 = aXYc; cut 0 = ; cut 2 = ab .r; cut 4 = abcd .rr;
box 5 3 24 = +-+/|_|/|_|/|_|/+-+; box 5 3 6 = +-+/|_|/|_|/+-+; box 7 5 3 = +---+; box 7 9 2 = ;
box 0 9 24 = ; box 3 0 9 = //; box 3 1 9 = +/|/+; box 3 2 9 = ++/||/++; light 5 = xxxxx .mmm;
light 2 = xx; light 1 = x; green 3 4 = xxx ggg; green 8 5 = xxxxxxxx ..ggggg; red 3 -1 = xxx;
red 9 4 = xxxxxxxxx ..rrrr; place 10 abcd 0 = +--abcd--+; place 10 abc 0 = +---abc--+;
place 9 ab 0 = +--ab---+; place 10 ab 6 = +-ab-----+; place 10 ab 8 = +ab------+;
place 9 ab 8 = +ab-----+; place 10 abcdefg 2 = +---abcdefg; place 4 abcdef 0 = abcdef)";

class FrameTest : public QObject {
    Q_OBJECT

private slots:
    void composes()
    {
        for (const QByteArray &row : QByteArray(table).split(';')) {
            const QByteArrayList words = row.simplified().split(' ');
            const QString text = QLatin1String(words[2]);
            const int number = words[1].toInt();
            const int last = words.value(3).toInt();
            Frame frame { { 0, QString(number, QLatin1Char('x')) } };
            if (words[0] == "replace")
                replaceText(frame[0] = QStringLiteral("abc"), number, last, text);
            else if (words[0] == "cut")
                frame[0] = cutToWidth(QStringLiteral("a\x1b[41mbc\x1b[1;0md"), number);
            else if (words[0] == "box")
                frame = buildBox(number, text.toInt(), last);
            else if (words[0] == "place")
                placeCentred(frame = buildBox(1, number, 24), number, 0, text, last);
            else
                words[0] == "light"
                    ? highlightLine(frame, 0)
                    : colourSegment(frame, number, 0, text.toInt(), words[0] == "red");
            TerminalEmulator terminal(1, 30);
            terminal.feed(QStringList(frame.values()).join(QLatin1Char('/')).toLatin1() + "\x1b[K");
            const QByteArrayList seen = words.mid(words.indexOf("=") + 1);
            QCOMPARE(terminal.row(0).toLatin1(), seen.value(0).replace('_', " "));
            QCOMPARE(terminal.backgrounds(0).toLatin1(), seen.value(1).leftJustified(30, '.'));
        }
        for (ushort c = 0; c < 256; ++c)
            QCOMPARE(printable(QChar(c)) == QChar(c), QChar(c).category() != QChar::Other_Control);
    }
};

QTEST_APPLESS_MAIN(FrameTest)
#include "FrameTest.moc"
