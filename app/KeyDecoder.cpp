#include "app/KeyDecoder.h"

namespace {

constexpr int escape = 27;

int plainKey(int byte)
{
    switch (byte) {
    case '\n':
        return Qt::Key_Return;
    case 127:
        return Qt::Key_Backspace;
    default:
        return byte;
    }
}

int sequenceKey(int byte)
{
    switch (byte) {
    case 'A':
        return Qt::Key_Up;
    case 'B':
        return Qt::Key_Down;
    case 'C':
        return Qt::Key_Right;
    case 'D':
        return Qt::Key_Left;
    default:
        return Qt::Key_unknown;
    }
}

} // namespace

std::optional<int> KeyDecoder::feed(int byte)
{
    if (keyBuffer.empty()) {
        if (byte != escape)
            return plainKey(byte);
        keyBuffer += char(byte);
        return std::nullopt;
    }
    if (byte == '~' && pendingKey != Qt::Key_unknown)
        return pendingKey;
    if (keyBuffer.size() == 1) {
        if (byte == escape)
            return Qt::Key_Escape;
        if (byte != '[')
            return plainKey(byte);
        keyBuffer += char(byte);
        return std::nullopt;
    }
    // Only "~" completes these; any other byte is decoded as if they had not come.
    if (byte == '5' || byte == '6') {
        pendingKey = byte == '5' ? Qt::Key_PageUp : Qt::Key_PageDown;
        return std::nullopt;
    }
    return sequenceKey(byte);
}
