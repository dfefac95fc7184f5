#include "terminal/TerminalEmulator.h"

#include <vterm.h>

static VTermScreenCell cellAt(VTermScreen *cells, int row, int column)
{
    VTermScreenCell cell = {};
    vterm_screen_get_cell(cells, { row, column }, &cell);
    return cell;
}

TerminalEmulator::TerminalEmulator(int rows, int columns)
    : vterm(vterm_new(rows, columns), vterm_free)
    , cells(vterm_obtain_screen(vterm.get()))
    , size(columns, rows)
{
    static VTermScreenCallbacks callbacks = {};
    callbacks.settermprop = [](VTermProp property, VTermValue *value, void *self) {
        if (property == VTERM_PROP_CURSORVISIBLE)
            static_cast<TerminalEmulator *>(self)->cursorShown = value->boolean;
        return 1;
    };
    callbacks.damage = [](VTermRect area, void *self) {
        for (int row = area.start_row; row < area.end_row; ++row)
            static_cast<TerminalEmulator *>(self)->written.insert(row);
        return 1;
    };
    const auto keepAnswer = [](const char *bytes, size_t size, void *self) {
        static_cast<TerminalEmulator *>(self)->answers.append(bytes, int(size));
    };
    vterm_set_utf8(vterm.get(), true);
    vterm_output_set_callback(vterm.get(), keepAnswer, this);
    vterm_screen_set_callbacks(cells, &callbacks, this);
    vterm_screen_reset(cells, true);
    written.clear();
}

void TerminalEmulator::feed(const QByteArray &bytes)
{
    // libvterm strips the high bit of Latin-1 and takes no 8-bit controls in UTF-8: text goes in as
    // UTF-8, a control as its escape sequence.
    QByteArray input;
    for (const char byte : bytes) {
        const bool isControl = (byte & 0xE0) == 0x80;
        input += isControl ? QByteArray("\x1B").append(char(byte - 0x40))
                           : QString(QLatin1Char(byte)).toUtf8();
    }
    vterm_input_write(vterm.get(), input.constData(), size_t(input.size()));
}

void TerminalEmulator::resize(int rows, int columns)
{
    // Some versions of libvterm drop the backgrounds of blanks, also where the size stays.
    if (size == QSize(columns, rows))
        return;
    const std::set<int> before = written;
    vterm_set_size(vterm.get(), rows, columns);
    written = before;
    size = { columns, rows };
}

QString TerminalEmulator::row(int row) const
{
    QString text;
    for (int column = 0; column < size.width(); ++column) {
        const uint32_t character = cellAt(cells, row, column).chars[0];
        text += character ? QChar(character) : QLatin1Char(' ');
    }
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}

QString TerminalEmulator::backgrounds(int row) const
{
    static const char byNumber[] = "?rg?bm";
    QString letters;
    for (int column = 0; column < size.width(); ++column) {
        const VTermColor colour = cellAt(cells, row, column).bg;
        const bool isNamed = VTERM_COLOR_IS_INDEXED(&colour) && colour.indexed.idx < 6;
        const char letter = VTERM_COLOR_IS_DEFAULT_BG(&colour) ? '.'
            : isNamed                                          ? byNumber[colour.indexed.idx]
                                                               : '?';
        letters += QLatin1Char(letter);
    }
    return letters;
}

QStringList TerminalEmulator::screen() const
{
    QStringList texts;
    for (int line = 0; line < size.height(); ++line)
        texts += row(line);
    return texts;
}

QPoint TerminalEmulator::cursor() const
{
    VTermPos position;
    vterm_state_get_cursorpos(vterm_obtain_state(vterm.get()), &position);
    return { position.col, position.row };
}
