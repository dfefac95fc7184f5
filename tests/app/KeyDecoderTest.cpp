// The keys that typed bytes make.
#include "app/KeyDecoder.h"

#include <QtTest>

class KeyDecoderTest : public QObject {
    Q_OBJECT

private slots:
    void decodes()
    {
        // The byte 255 stands for the end of input.
        const std::pair<QByteArray, int> table[] { { "\xff", -1 }, { "\x1b\xff", -1 },
            { "\x1bx", 'x' }, { "\x1b~", '~' }, { "\x7f", 0x01000003 }, { "\n", 0x01000004 },
            { "\x1b[D", 0x01000012 }, { "\x1b[A", 0x01000013 }, { "\x1b[C", 0x01000014 },
            { "\x1b[B", 0x01000015 }, { "\x1b[5~", 0x01000016 }, { "\x1b[6~", 0x01000017 },
            { "\x1b[56~", 0x01000017 }, { "\x1b[5A", 0x01000013 }, { "\x1b[H", 0x01ffffff },
            { "\x1b[6\xff", 0x01ffffff }, { "\x1b\x1b", 0x01000000 }, { "\x1b\n", 0x01000004 } };
        for (const auto &[bytes, key] : table) {
            KeyDecoder decoder;
            for (const char byte : bytes.chopped(1))
                QVERIFY(!decoder.feed(byte));
            QCOMPARE(decoder.feed(bytes.back() == '\xff' ? -1 : bytes.back()).value_or(-2), key);
        }
        for (int byte = 0; byte < 256; ++byte)
            if (byte != 10 && byte != 27 && byte != 127)
                QCOMPARE(KeyDecoder().feed(byte).value_or(-2), byte);
    }
};

QTEST_APPLESS_MAIN(KeyDecoderTest)
#include "KeyDecoderTest.moc"
