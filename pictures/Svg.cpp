#include "pictures/Svg.h"

#include <numeric>

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

QString textOf(const QString &text, int column, int row, const char *colour)
{
    return QStringLiteral("<text x=\"%1\" y=\"%2\" textLength=\"%3\" fill=\"%4\" "
                          "xml:space=\"preserve\">%5</text>\n")
        .arg(column * cellWidth)
        .arg(row * cellHeight + baseline)
        .arg(text.size() * cellWidth)
        .arg(QLatin1String(colour), text.toHtmlEscaped());
}

QString shapesOf(const TerminalEmulator &terminal)
{
    const QStringList rows = terminal.screen();
    QString shapes;
    for (int row = 0; row < rows.size(); ++row)
        shapes += backgroundsOf(terminal.backgrounds(row), row);
    if (terminal.cursorVisible()) {
        shapes += rectangle(terminal.cursor().x(), terminal.cursor().y(), 1,
            QStringLiteral("fill=\"none\" stroke=\"#e8e8e8\""));
    }
    for (int row = 0; row < rows.size(); ++row) {
        if (rows.at(row).isEmpty())
            continue;
        shapes += textOf(rows.at(row), 0, row, "#e8e8e8");
    }
    return shapes;
}

// In the top right corner, as on the cap of a key.
QString labelOf(const QString &keys, int columns)
{
    if (keys.isEmpty())
        return {};
    QString text = QStringLiteral(" %1 ").arg(keys);
    text.replace(QLatin1Char('*'), QStringLiteral(" \u00d7 "));
    const int column = columns - text.size();
    return rectangle(column, 0, text.size(), QStringLiteral("rx=\"3\" fill=\"#e8c860\""))
        + textOf(text, column, 0, "#16181c");
}

QSize sizeOf(const TerminalEmulator &terminal)
{
    return { terminal.backgrounds(0).size(), terminal.screen().size() };
}

// A picture of the size in columns and rows, on the background of a terminal.
QByteArray pictureOf(const QSize &size, const QString &content)
{
    return QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" "
                          "height=\"%2\" font-family=\"monospace\" font-size=\"15\">\n"
                          "<rect width=\"100%\" height=\"100%\" fill=\"#16181c\"/>\n%3</svg>\n")
        .arg(size.width() * cellWidth)
        .arg(size.height() * cellHeight)
        .arg(content)
        .toUtf8();
}

} // namespace

QByteArray svgOf(const TerminalEmulator &terminal)
{
    return pictureOf(sizeOf(terminal), shapesOf(terminal));
}

void SvgFilm::add(const TerminalEmulator &terminal, const QString &keys, int ms)
{
    size = sizeOf(terminal);
    frames.append({ shapesOf(terminal) + labelOf(keys, size.width()), ms });
}

// The screens are below each other on a strip, which jumps up by one screen at a time.
QByteArray SvgFilm::svg() const
{
    const int height = size.height() * cellHeight;
    const int total = std::accumulate(frames.begin(), frames.end(), 0,
        [](int sum, const Frame &frame) { return sum + frame.ms; });
    QString jumps;
    QString strip;
    int shownMs = 0;
    for (int i = 0; i < frames.size(); ++i) {
        jumps += QStringLiteral("%1%{transform:translateY(%2px)}\n")
                     .arg(100.0 * shownMs / total, 0, 'f', 3)
                     .arg(-i * height);
        strip += QStringLiteral("<g transform=\"translate(0,%1)\">\n%2</g>\n")
                     .arg(i * height)
                     .arg(frames.at(i).shapes);
        shownMs += frames.at(i).ms;
    }
    const QString style = QStringLiteral("<style>\n@keyframes film{\n%1}\n"
                                         "#film{animation:film %2ms step-end infinite}\n"
                                         "@media (prefers-reduced-motion:reduce){"
                                         "#film{animation:none}}\n</style>\n")
                              .arg(jumps)
                              .arg(total);
    // The inner picture clips the strip to one screen.
    return pictureOf(size,
        style
            + QStringLiteral("<svg width=\"100%\" height=\"100%\">\n"
                             "<g id=\"film\" transform=\"translate(0,%1)\">\n%2</g>\n</svg>\n")
                  .arg(-still * height)
                  .arg(strip));
}
