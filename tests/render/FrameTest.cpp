// Lines and boxes where sessions do not get to: columns outside, boxes without room, long texts.
#include "render/Frame.h"
#include "render/ForeignText.h"

#include <QtTest>

namespace {

// The text with names for the escape sequences, so that a failure can be read.
QString named(QString text)
{
    text.replace(Escape::redBackground, QLatin1String("<red>"));
    text.replace(Escape::greenBackground, QLatin1String("<green>"));
    text.replace(Escape::highlight, QLatin1String("<light>"));
    return text.replace(Escape::reset, QLatin1String("<reset>"));
}

QString replaced(int column, int length, const char *text)
{
    QString line = QStringLiteral("abc");
    replaceText(line, column, length, QLatin1String(text));
    return line;
}

QString cut(int width)
{
    return cutToWidth(QStringLiteral("a\x1b[41mbc\x1b[0md"), width);
}

QString box(int height, int width, int termRows)
{
    return QStringList(buildBox(height, width, termRows).values()).join(QLatin1Char('/'));
}

QString highlighted(const char *line)
{
    Frame frame { { 0, QLatin1String(line) } };
    highlightLine(frame, 0);
    return frame[0];
}

QString coloured(const char *line, int width, int length, bool red)
{
    Frame frame { { 0, QLatin1String(line) } };
    colourSegment(frame, width, 0, length, red);
    return frame[0];
}

QString centred(int width, const char *text, int maxLength)
{
    Frame frame { { 0, QString(width, QLatin1Char('-')) } };
    placeCentred(frame, width, 0, QLatin1String(text), maxLength);
    return frame[0];
}

} // namespace

class FrameTest : public QObject {
    Q_OBJECT

private slots:
    void composes_data()
    {
        QTest::addColumn<QString>("made");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &made, const char *expected) {
            QTest::newRow(name) << named(made) << QString::fromLatin1(expected);
        };
        row("insert in the middle", replaced(1, 0, "XY"), "aXYbc");
        row("replace in the middle", replaced(1, 1, "XY"), "aXYc");
        row("insert after the end", replaced(5, 0, "X"), "abc  X");
        row("remove more than there is", replaced(2, 9, "X"), "abX");
        row("replace before the start", replaced(-4, 2, "X"), "Xc");
        row("cut to nothing", cut(0), "<red><reset>");
        row("cut in a colour", cut(2), "a<red>b<reset>");
        row("cut nothing", cut(4), "a<red>bc<reset>d");
        row("box as high as the rows between the bars", box(3, 3, 5), "+-+/| |/+-+");
        row("box of all rows", box(5, 3, 5), "+-+/| |/+-+");
        row("box of one line", box(7, 5, 3), "+---+");
        row("box without room", box(7, 9, 2), "");
        row("box without height", box(0, 9, 24), "");
        row("box without width", box(3, 0, 9), "//");
        row("box of one column", box(3, 1, 9), "+/|/+");
        row("box of two columns", box(3, 2, 9), "++/||/++");
        row("highlight", highlighted("|xx|"), "|<light>xx<reset>|");
        row("highlight without an inside", highlighted("||"), "|<light><reset>|");
        row("colour in an odd rest", coloured("xxxxxxxx", 8, 5, false), "xx<green>xxxxx<reset>x");
        row("colour of more than the line", coloured("xxx", 3, 9, true), "<red>xxx<reset>");
        row("colour of less than nothing", coloured("xxx", 3, -1, true), "x<red><reset>xx");
        row("centred by its length", centred(10, "abcd", 0), "---abcd---");
        row("centred with an odd rest", centred(10, "abc", 0), "----abc---");
        row("centred by another length", centred(10, "ab", 6), "--ab------");
        row("centred by the whole width", centred(9, "ab", 9), "-ab------");
        row("centred beyond the end", centred(10, "abcdefg", 2), "----abcdefg");
        row("centred and wider", centred(4, "abcdef", 0), "abcdef");
    }

    void composes()
    {
        QFETCH(QString, made);
        QTEST(made, "expected");
    }

    void blanksControlCharacters()
    {
        for (ushort code = 0; code < 256; ++code) {
            const bool isControl = code < 32 || (code >= 127 && code < 160);
            QCOMPARE(printable(QChar(code)), QString(isControl ? QLatin1Char(' ') : QChar(code)));
        }
    }
};

QTEST_APPLESS_MAIN(FrameTest)
#include "FrameTest.moc"
