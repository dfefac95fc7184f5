// Keys as text, as in: Down*3 Return "a text" Escape
#pragma once

#include <QByteArrayList>
#include <QString>

#include <optional>

/// The text with each "\xHH" replaced by the character with that hexadecimal code.
QString withCharacterCodes(QString text);

/// The bytes of each key of `text`, in order. A word is the name of a key, with "*" and a number to
/// repeat it, or a text in quotes, with character codes: one key per Latin-1 character. Nothing if
/// a word is neither.
std::optional<QByteArrayList> keysFromText(const QString &text);
