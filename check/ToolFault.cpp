#include "check/ToolFault.h"

#include <QFile>
#include <QFileInfo>

namespace {

// `line` is the first one of a script, after "#!".
QString interpreterFault(const QByteArray &line)
{
    if (line.endsWith('\r')) {
        return QStringLiteral("its first line ends with a carriage return, which counts as part of "
                              "the interpreter's name; save it with the line ends of Unix");
    }
    const QString interpreter =
        QFile::decodeName(line.simplified()).section(QLatin1Char(' '), 0, 0);
    const QFileInfo file(interpreter);
    if (file.isFile() && file.isExecutable())
        return {};
    return QStringLiteral(
        "its interpreter \"%1\" is no executable file; install it, or correct the "
        "first line")
        .arg(interpreter);
}

} // namespace

QString toolFault(const QString &path)
{
    constexpr int longestLine = 256; // that Linux reads
    const QFileInfo info(path);
    if (!info.exists())
        return QStringLiteral("there is no such file; correct its path");
    if (!info.isFile())
        return QStringLiteral("it is no file; correct its path");
    if (!info.isExecutable())
        return QStringLiteral("it is not executable; allow it with chmod +x");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) // a program can be executed all the same
        return {};
    QByteArray line = file.readLine(longestLine);
    if (line.endsWith('\n'))
        line.chop(1);
    if (line.startsWith("#!"))
        return interpreterFault(line.mid(2));
    return line.startsWith("\x7f"
                           "ELF")
        ? QString()
        : QStringLiteral("it is neither a program nor a script; begin it with a line such as "
                         "#!/bin/sh");
}
