// From typed bytes to keys.
#pragma once

#include <QtCore/qnamespace.h>

#include <optional>
#include <string>

/// Takes the bytes of one key, an escape sequence or a single byte, one by one. Allocates nothing.
class KeyDecoder {
public:
    /// Takes the next byte, 0 to 255, or -1 for the end of input. Returns the key when it is
    /// complete: a Qt::Key for the keys that have one, any other byte as its own value, -1 for the
    /// end of input.
    std::optional<int> feed(int byte);

private:
    std::string keyBuffer; ///< two bytes at most: never allocates
    int pendingKey = Qt::Key_unknown;
};
