// Whatever is drawn, wherever: no row is wider than the terminal and no foreign text controls it.
#include "render/ForeignText.h"
#include "render/Frame.h"
#include "tests/fuzz/Expect.h"

#include <fuzzer/FuzzedDataProvider.h>

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

QString foreignText(FuzzedDataProvider &input)
{
    const std::string bytes = input.ConsumeRandomLengthString();
    const QString text = input.ConsumeBool() ? QString::fromUtf8(bytes.data(), int(bytes.size()))
                                             : QString::fromLatin1(bytes.data(), int(bytes.size()));
    return printable(text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider input(data, size);
    const int rows = input.ConsumeIntegralInRange(0, 15);
    const int width = input.ConsumeIntegralInRange(0, 99);
    Frame frame = buildBox(input.ConsumeIntegral<int>(), width, rows);
    expect(frame.size() <= qMax(rows - 2, 0));
    while (input.remaining_bytes() > 0) {
        const int line = input.ConsumeIntegralInRange(0, 15);
        switch (input.ConsumeIntegralInRange(0, 3)) {
        case 0:
            placeCentred(frame, width, line, foreignText(input), input.ConsumeIntegral<int>());
            break;
        case 1:
            insertText(frame[line], input.ConsumeIntegralInRange(-1000, 1000), foreignText(input));
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
            colourSegment(coloured, width, line, input.ConsumeIntegral<int>(), input.ConsumeBool());
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
