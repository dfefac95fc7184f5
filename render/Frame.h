// The lines of a screen or a box, and the operations that compose them.
#pragma once

#include <QLatin1String>
#include <QMap>
#include <QString>

/// Line number, from 0, to the text of that line, escape sequences included. A missing line is
/// empty.
using Frame = QMap<int, QString>;

namespace Escape {
const QLatin1String reset("\x1b[0m");
const QLatin1String eraseToEndOfLine("\x1b[K");
const QLatin1String redBackground("\x1b[41m");
const QLatin1String greenBackground("\x1b[42m");
const QLatin1String blueBackground("\x1b[44m");
const QLatin1String highlight("\x1b[45m");
} // namespace Escape

/// Inserts `text` into `line` at `column`, counted from 0; a column below 0 counts as 0, a line
/// that ends before it is padded with blanks. An empty text changes nothing.
void insertText(QString &line, int column, const QString &text);

/// Removes `length` characters of `line` from `column` on and inserts `text` there, as `insertText`
/// does.
void replaceText(QString &line, int column, int length, const QString &text);

/// `line` without the visible characters beyond the first `width`; escape sequences are kept and
/// count as nothing.
QString cutToWidth(const QString &line, int width);

/// A box of `height` lines and `width` columns with a border. On a terminal of `termRows` rows it
/// leaves the first and the last row free; empty when no line is left.
Frame buildBox(int height, int width, int termRows);

/// Gives the inside of a box line, all but its first and last character, the highlight colour.
void highlightLine(Frame &frame, int line);

/// Colours `length` characters, at most `width`, in the middle of a line of `width` columns: red or
/// green.
void colourSegment(Frame &frame, int width, int line, int length, bool red);

/// Overwrites a line of `width` columns with `text`, from where a text of `maxLength` characters,
/// at most `width` - 2, would be centred; 0 stands for the text's own length.
void placeCentred(Frame &frame, int width, int line, const QString &text, int maxLength);
