// Keys as text, as in: Down*3 Return "a text" Escape
#pragma once

#include <QByteArrayList>
#include <QString>

#include <optional>

/// The text with each "\xHH" replaced by the character with that hexadecimal code.
QString withCharacterCodes(QString text);

/// The bytes of each key of `text`, in order: names of keys, with "*" and a number to repeat one,
/// and texts in quotes, with character codes, of which each Latin-1 character is a key. Nothing
/// when a word is no key.
std::optional<QByteArrayList> keysFromText(const QString &text);
