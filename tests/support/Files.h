// Files that a test reads.
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

/// Of a file of the sources, some of which the tests compare with what the programs do.
inline QByteArray sourceFile(const QString &path)
{
    return readFile(SOURCES "/" + path);
}
