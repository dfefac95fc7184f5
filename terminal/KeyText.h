// Keys as text, as in: Down*3 Return "a text" Escape
#pragma once

#include <QByteArrayList>
#include <QString>

#include <optional>

/// The bytes of each key of `text`, in order: names of keys, with "*" and a number to repeat one,
/// and texts in quotes, each Latin-1 character a key; in quotes "\xHH" is the character with that
/// hexadecimal code. Nothing when a word is no key.
std::optional<QByteArrayList> keysFromText(const QString &text);
