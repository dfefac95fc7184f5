// Files of the sources, which some tests compare with what the programs do.
#pragma once

#include <QFile>

/// The content of the file at `path` below the sources.
inline QByteArray sourceFile(const char *path)
{
    QFile file(QString(SOURCES "/") + path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", path);
    return file.readAll();
}
