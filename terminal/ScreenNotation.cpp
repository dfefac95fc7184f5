#include "terminal/ScreenNotation.h"

// Colours, with their columns unless the whole row has one, and the text cursor.
static QString remarksOn(const TerminalEmulator &terminal, int row, const QString &colours)
{
    static const QStringList names { QStringLiteral("red"), QStringLiteral("green"),
        QStringLiteral("blue"), QStringLiteral("magenta") };
    QStringList remarks;
    for (int first = 0, next = 0; first < colours.size(); first = next) {
        const QString name = names.value(
            QStringLiteral("rgbm").indexOf(colours.at(first)), QStringLiteral("other colour"));
        while (next < colours.size() && colours.at(next) == colours.at(first))
            ++next;
        if (colours.at(first) != QLatin1Char('.'))
            remarks += next - first == colours.size()
                ? name
                : QStringLiteral("%1 %2-%3").arg(name).arg(first + 1).arg(next);
    }
    if (terminal.cursorVisible() && terminal.cursor().y() == row)
        remarks += QStringLiteral("cursor %1").arg(terminal.cursor().x() + 1);
    return QLatin1String(remarks.isEmpty() ? "" : "  <- ") + remarks.join(QStringLiteral(", "));
}

// A row without its number.
static QString notationOfRow(const TerminalEmulator &terminal, int row)
{
    return QStringLiteral(" :") + terminal.row(row)
        + remarksOn(terminal, row, terminal.backgrounds(row));
}

QStringList notationOfRows(const TerminalEmulator &terminal, const std::set<int> &rows)
{
    QStringList lines;
    for (auto row = rows.begin(); row != rows.end();) {
        const int first = *row;
        int last = first;
        const QString notation = notationOfRow(terminal, first);
        while (++row != rows.end() && *row == last + 1 && notationOfRow(terminal, *row) == notation)
            ++last;
        QString number = QString::number(first + 1);
        if (last > first)
            number += QLatin1Char('-') + QString::number(last + 1);
        lines += number.rightJustified(6) + notation;
    }
    return lines;
}

QStringList notationOfScreen(const TerminalEmulator &terminal)
{
    std::set<int> rows;
    for (int row = terminal.screen().size() - 1; row >= 0; --row)
        rows.insert(row);
    return notationOfRows(terminal, rows);
}
