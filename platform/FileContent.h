// Reading a file as a whole.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The bytes of the file at `path`; nothing when it cannot be read or is no regular file: a pipe
/// would let the program wait for its writer. `fault`, if given, then has the reason.
std::optional<QByteArray> fileContent(const QString &path, QString *fault = nullptr);
