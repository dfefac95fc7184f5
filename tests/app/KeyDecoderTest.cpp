// The keys that typed bytes make: every byte, and the end of input, after every beginning of a
// sequence.
#include "app/KeyDecoder.h"
#include "tests/support/Rows.h"

#include <QHash>

namespace {

using Keys = QHash<int, int>;

constexpr int endOfInput = -1;
constexpr int none = -2; ///< no key yet
constexpr int itself = -3; ///< the byte is the key

const Keys arrows { { 'A', Qt::Key_Up }, { 'B', Qt::Key_Down }, { 'C', Qt::Key_Right },
    { 'D', Qt::Key_Left }, { '5', none }, { '6', none } };

Keys arrowsAnd(int tilde)
{
    Keys keys = arrows;
    keys.insert('~', tilde);
    return keys;
}

} // namespace

class KeyDecoderTest : public QObject {
    Q_OBJECT

private slots:
    void decodes_data()
    {
        const Rows<QByteArray, Keys, int> row("begun", "keys", "otherwise");
        row("first byte", "",
            { { '\n', Qt::Key_Return }, { 127, Qt::Key_Backspace }, { 27, none } }, itself);
        row("ESC", "\x1b",
            { { '\n', Qt::Key_Return }, { 127, Qt::Key_Backspace }, { 27, Qt::Key_Escape },
                { '[', none } },
            itself);
        row("ESC [", "\x1b[", arrows, Qt::Key_unknown);
        row("ESC [ 5", "\x1b[5", arrowsAnd(Qt::Key_PageUp), Qt::Key_unknown);
        row("ESC [ 6", "\x1b[6", arrowsAnd(Qt::Key_PageDown), Qt::Key_unknown);
        row("ESC [ 5 6", "\x1b[56", arrowsAnd(Qt::Key_PageDown), Qt::Key_unknown);
    }

    void decodes()
    {
        QFETCH(QByteArray, begun);
        QFETCH(Keys, keys);
        QFETCH(int, otherwise);
        for (int byte = endOfInput; byte < 256; ++byte) {
            KeyDecoder decoder;
            for (const char earlier : begun)
                QVERIFY(!decoder.feed(earlier));
            const int expected = keys.value(byte, otherwise == itself ? byte : otherwise);
            const int key = decoder.feed(byte).value_or(none);
            QVERIFY2(key == expected,
                qPrintable(QStringLiteral("byte %1: key %2").arg(byte).arg(key, 0, 16)));
        }
    }
};

QTEST_APPLESS_MAIN(KeyDecoderTest)
#include "KeyDecoderTest.moc"
