// Whatever is drawn, wherever: no row is wider than the terminal and no foreign text controls it.
#include "render/ForeignText.h"
#include "render/Frame.h"
#include "tests/fuzz/Bytes.h"

namespace {

int visibleWidth(const QString &line)
{
    int width = 0;
    for (int i = 0; i < line.size(); ++i) {
        if (line.at(i) != QChar(0x1b)) {
            expect(line.at(i).unicode() >= 0x20);
            ++width;
            continue;
        }
        // Only whole sequences of the console's own may be left: "\e[4", a digit, "m", or a reset.
        expect(line.mid(i, 4) == QLatin1String("\x1b[0m")
            || line.mid(i, 3) == QLatin1String("\x1b[4"));
        i = line.indexOf(QLatin1Char('m'), i);
        expect(i >= 0);
    }
    return width;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Bytes bytes(data, size);
    const int rows = bytes.byte() % 16;
    const int width = bytes.byte() % 100;
    Frame frame = buildBox(bytes.number(), width, rows);
    expect(frame.size() <= qMax(rows - 2, 0));
    while (!bytes.isEmpty()) {
        const int line = bytes.byte() % 16;
        switch (bytes.byte() % 4) {
        case 0:
            placeCentred(frame, width, line, printable(bytes.text()), bytes.number());
            break;
        case 1:
            insertText(frame[line], bytes.number() % 1000, printable(bytes.text()));
            break;
        case 2: {
            // Colours come last on a line, as in the dialogs.
            Frame coloured = frame;
            highlightLine(coloured, line);
            visibleWidth(coloured.value(line));
            break;
        }
        default: {
            Frame coloured = frame;
            colourSegment(coloured, width, line, bytes.number(), bytes.byte() & 1);
            visibleWidth(coloured.value(line));
            expect(visibleWidth(cutToWidth(coloured.value(line), width)) <= width);
            break;
        }
        }
    }
    for (const QString &line : qAsConst(frame))
        expect(visibleWidth(cutToWidth(line, width)) <= width);
    return 0;
}
