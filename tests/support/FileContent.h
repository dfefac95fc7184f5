// The content of files.
#pragma once

#include <QFile>

inline QByteArray fileContent(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

/// Of a file of the sources, some of which the tests compare with what the programs do.
inline QByteArray sourceFile(const QString &path)
{
    return fileContent(SOURCES "/" + path);
}
