// Whatever is typed: every key is one of the table or a byte, and none needs more than it should.
#include "app/KeyDecoder.h"
#include "tests/fuzz/Bytes.h"

#include <QSet>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QSet<int> specialKeys { Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_Return,
        Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
        Qt::Key_unknown };
    Bytes bytes(data, size);
    KeyDecoder decoder;
    int taken = 0;
    int repeated = 0; // "5" and "6" within a sequence: each is judged anew
    while (!bytes.isEmpty()) {
        const int byte = bytes.byte();
        const std::optional<int> key = decoder.feed(byte);
        ++taken;
        if (!key) {
            repeated += taken > 2;
            continue;
        }
        expect(specialKeys.contains(*key) || (*key == byte && byte != '\n' && byte != 127));
        expect(taken - repeated <= 3);
        decoder = {};
        taken = repeated = 0;
    }
    return 0;
}
