// Numbers and texts out of a fuzzer's input.
#pragma once

#include <QString>

class Bytes {
public:
    Bytes(const uint8_t *data, size_t size)
        : next(data)
        , end(data + size)
    {
    }

    bool isEmpty() const { return next == end; }
    int byte() { return isEmpty() ? 0 : *next++; }

    /// A number around the sizes of terminals, now and then an extreme one.
    int number()
    {
        const int low = byte();
        const int high = byte();
        switch (high) {
        case 0xff:
            return INT32_MAX - low;
        case 0xfe:
            return INT32_MIN + low;
        default:
            return (high << 8 | low) - 300;
        }
    }

    /// Up to 255 characters; every second text is of 16-bit units.
    QString text()
    {
        const int length = byte();
        const bool wide = length & 1;
        QString text;
        for (int i = 0; i < length && !isEmpty(); ++i)
            text += QChar(wide ? byte() << 8 | byte() : byte());
        return text;
    }

    QByteArray rest() const { return { reinterpret_cast<const char *>(next), int(end - next) }; }

private:
    const uint8_t *next;
    const uint8_t *const end;
};

/// Ends the run and keeps the input when an expectation does not hold.
inline void expect(bool holds)
{
    if (!holds)
        __builtin_trap();
}
