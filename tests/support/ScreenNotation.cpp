#include "tests/support/ScreenNotation.h"

#include <Version.h>

// The text of a row and its colours, without numbers.
static QStringList notationOfRow(const TerminalEmulator &terminal, int row)
{
    // The expectations outlive a version.
    QString text = terminal.row(row);
    text.replace(QLatin1String("ver: ") + consoleVersion, QLatin1String("ver: VERSION"));
    QString colours = terminal.backgrounds(row).replace(QLatin1Char('.'), QLatin1Char(' '));
    const QChar first = colours.at(0);
    if (colours.count(first) == colours.size())
        return { first + QLatin1Char(':') + text };
    while (colours.endsWith(QLatin1Char(' ')))
        colours.chop(1);
    return { QStringLiteral(" :") + text, QStringLiteral(" :") + colours };
}

QStringList notationOfRows(const TerminalEmulator &terminal, const std::set<int> &rows)
{
    QStringList lines;
    for (auto row = rows.begin(); row != rows.end();) {
        const int first = *row;
        int last = first;
        QStringList notation = notationOfRow(terminal, first);
        while (++row != rows.end() && *row == last + 1 && notationOfRow(terminal, *row) == notation)
            ++last;
        QString number = QString::number(first + 1);
        if (last > first)
            number += QLatin1Char('-') + QString::number(last + 1);
        for (const QString &line : notation) {
            lines += number.rightJustified(6) + line;
            number.clear();
        }
    }
    return lines;
}
