#include "check/CommandLine.h"

#include "render/ForeignText.h"

#include <QCoreApplication>

#include <Version.h>

void print(std::FILE *file, const QString &line)
{
    std::fprintf(file, "%s\n", printable(line).toLocal8Bit().constData());
    std::fflush(file);
}

void printMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    print(stderr, qFormatLogMessage(type, context, text));
}

int failure(int status, const QString &text)
{
    print(stderr, QCoreApplication::applicationName() + QStringLiteral(": ") + text);
    return status;
}

std::optional<int> parseCommandLine(QCommandLineParser &parser)
{
    const QCommandLineOption help(QStringLiteral("help"), QStringLiteral("Print this text."));
    const QCommandLineOption version(
        QStringLiteral("version"), QStringLiteral("Print the version."));
    parser.addOptions({ help, version });
    if (!parser.parse(QCoreApplication::arguments()))
        return failure(wrongUsage, parser.errorText());
    if (parser.isSet(help)) {
        for (const QString &line : parser.helpText().split(QLatin1Char('\n')))
            print(stdout, line);
        return 0;
    }
    if (parser.isSet(version)) {
        print(stdout, QCoreApplication::applicationName() + QLatin1Char(' ') + consoleVersion);
        return 0;
    }
    if (!parser.positionalArguments().isEmpty())
        return failure(
            wrongUsage, QStringLiteral("unexpected ") + parser.positionalArguments().first());
    return std::nullopt;
}
