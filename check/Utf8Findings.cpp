#include "check/Utf8Findings.h"

#include <algorithm>

Findings utf8Findings(const QByteArray &bytes, const QString &what)
{
    constexpr int byteOrderMark = 3; // is not in the decoded text
    const QByteArray content = bytes.startsWith("\xef\xbb\xbf") ? bytes.mid(byteOrderMark) : bytes;
    // What is not UTF-8 comes back as U+FFFD.
    const QByteArray decoded = QString::fromUtf8(content).toUtf8();
    const auto difference =
        std::mismatch(content.cbegin(), content.cend(), decoded.cbegin(), decoded.cend());
    if (difference.first == content.cend())
        return {};
    const auto line = std::count(content.cbegin(), difference.first, '\n') + 1;
    return { warning("not-utf8", "%1 is not UTF-8 (line %2, byte %3); write it in UTF-8", what,
        line, difference.first - content.cbegin() + 1) };
}
