// Files that a test reads and writes.
#pragma once

#include "platform/FileContent.h"

/// The content of a file that has to be there.
inline QByteArray readFile(const QString &path)
{
    const auto content = fileContent(path);
    if (!content)
        qFatal("cannot read %s", qPrintable(path));
    return *content;
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// Of a file of the sources, some of which the tests compare with what the programs do.
inline QByteArray sourceFile(const QString &path)
{
    return readFile(SOURCES "/" + path);
}
