#include "tests/support/RunProgram.h"

#include <QFile>

#include <cstdio>
#include <sys/wait.h>

ProgramResult runProgram(const QString &program, const QStringList &arguments)
{
    QByteArray command = "exec ";
    for (QString word : QStringList(program) + arguments)
        command +=
            '\'' + word.replace(QLatin1Char('\''), QLatin1String(R"('\'')")).toLocal8Bit() + "' ";
    command += "</dev/null";

    FILE *pipe = popen(command.constData(), "r"); // NOLINT(cert-env33-c): every word is quoted
    QFile reader;
    if (pipe == nullptr || !reader.open(pipe, QIODevice::ReadOnly))
        return { -1, QByteArray() };
    const QByteArray output = reader.readAll();
    const int status = pclose(pipe);
    return { WIFEXITED(status) ? WEXITSTATUS(status) : -1, output };
}
