#include "pictures/Svg.h"

namespace {

constexpr int cellWidth = 9;
constexpr int cellHeight = 18;
constexpr int baseline = 13; // below the top of a cell

const char *colourOf(QChar letter)
{
    switch (letter.toLatin1()) {
    case 'r':
        return "#b02a30";
    case 'g':
        return "#2a7a3a";
    case 'b':
        return "#2a4a9a";
    case 'm':
        return "#8a3a8a";
    default:
        return nullptr;
    }
}

QString rectangle(int column, int row, int columns, const QString &style)
{
    return QStringLiteral("<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" %5/>\n")
        .arg(column * cellWidth)
        .arg(row * cellHeight)
        .arg(columns * cellWidth)
        .arg(cellHeight)
        .arg(style);
}

QString backgroundsOf(const QString &letters, int row)
{
    QString shapes;
    for (int start = 0, end = 0; start < letters.size(); start = end) {
        while (end < letters.size() && letters.at(end) == letters.at(start))
            ++end;
        if (const char *const colour = colourOf(letters.at(start))) {
            shapes += rectangle(
                start, row, end - start, QStringLiteral("fill=\"%1\"").arg(QLatin1String(colour)));
        }
    }
    return shapes;
}

} // namespace

QByteArray svgOf(const TerminalEmulator &terminal)
{
    const QStringList rows = terminal.screen();
    const int columns = terminal.backgrounds(0).size();
    QString svg = QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" "
                                 "height=\"%2\" font-family=\"monospace\" font-size=\"15\">\n")
                      .arg(columns * cellWidth)
                      .arg(rows.size() * cellHeight);
    svg += QStringLiteral("<rect width=\"100%\" height=\"100%\" fill=\"#16181c\"/>\n");
    for (int row = 0; row < rows.size(); ++row)
        svg += backgroundsOf(terminal.backgrounds(row), row);
    if (terminal.cursorVisible()) {
        svg += rectangle(terminal.cursor().x(), terminal.cursor().y(), 1,
            QStringLiteral("fill=\"none\" stroke=\"#e8e8e8\""));
    }
    for (int row = 0; row < rows.size(); ++row) {
        if (rows.at(row).isEmpty())
            continue;
        svg += QStringLiteral("<text x=\"0\" y=\"%1\" textLength=\"%2\" fill=\"#e8e8e8\" "
                              "xml:space=\"preserve\">%3</text>\n")
                   .arg(row * cellHeight + baseline)
                   .arg(rows.at(row).size() * cellWidth)
                   .arg(rows.at(row).toHtmlEscaped());
    }
    svg += QStringLiteral("</svg>\n");
    return svg.toUtf8();
}
