#include "render/Frame.h"

namespace {

const QChar escapeCharacter(0x1b);

bool endsSequence(QChar character)
{
    return character >= QLatin1Char('@') && character != QLatin1Char('[');
}

} // namespace

void insertText(QString &line, int column, const QString &text)
{
    if (text.isEmpty())
        return;
    column = qMax(column, 0);
    if (line.size() < column)
        line.resize(column, QLatin1Char(' '));
    line.insert(column, text);
}

void replaceText(QString &line, int column, int length, const QString &text)
{
    column = qMax(column, 0);
    line.remove(column, qMax(length, 0));
    insertText(line, column, text);
}

QString cutToWidth(const QString &line, int width)
{
    if (line.size() <= width)
        return line;
    QString cut;
    cut.reserve(line.size());
    bool inSequence = false;
    int visible = 0;
    for (const QChar character : line) {
        if (inSequence) {
            cut += character;
            inSequence = !endsSequence(character);
        } else if (character == escapeCharacter) {
            cut += character;
            inSequence = true;
        } else if (visible++ < width) {
            cut += character;
        }
    }
    return cut;
}

Frame buildBox(int height, int width, int termRows)
{
    if (height >= termRows - 1)
        height = termRows - 2;
    const int inside = qMax(width - 2, 0);
    const auto line = [width](QChar border, const QString &middle) {
        return QString(border + middle + border).left(qMax(width, 0));
    };
    const QString edge = line(QLatin1Char('+'), QString(inside, QLatin1Char('-')));
    const QString body = line(QLatin1Char('|'), QString(inside, QLatin1Char(' ')));
    Frame box;
    for (int i = 0; i < height; ++i)
        box.insert(i, i == 0 || i == height - 1 ? edge : body);
    return box;
}

void highlightLine(Frame &frame, int line)
{
    QString &text = frame[line];
    insertText(text, 1, Escape::highlight);
    // On a line of one character the reset would otherwise land within the colour sequence.
    insertText(text, qMax(text.size() - 1, 1 + Escape::highlight.size()), Escape::reset);
}

void colourSegment(Frame &frame, int width, int line, int length, bool red)
{
    QString &text = frame[line];
    const QLatin1String colour = red ? Escape::redBackground : Escape::greenBackground;
    const int coloured = qMax(qMin(length, width), 0);
    const int start = qMax(width / 2 - coloured / 2, 0);
    insertText(text, start, colour);
    insertText(text, start + coloured + colour.size(), Escape::reset);
}

void placeCentred(Frame &frame, int width, int line, const QString &text, int maxLength)
{
    if (text.isEmpty())
        return;
    const int length = maxLength == 0 ? text.size() : qMin(maxLength, width - 2);
    replaceText(frame[line], width / 2 - qMax(length, 0) / 2, text.size(), text);
}
