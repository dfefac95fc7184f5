#include "check/CommandLine.h"

#include "render/ForeignText.h"

#include <QCoreApplication>

#include <Version.h>

#include <cerrno>
#include <cstring>

namespace {

int printError = 0; // errno of the first line that was not printed

} // namespace

void print(std::FILE *file, const QString &line)
{
    const bool isPrinted =
        std::fprintf(file, "%s\n", printable(line).toLocal8Bit().constData()) >= 0
        && std::fflush(file) == 0;
    if (!isPrinted && printError == 0)
        printError = errno;
}

int statusOfOutput(int status)
{
    if (printError == 0)
        return status;
    return failure(outputLost,
        QStringLiteral("the output is not complete: ")
            + QString::fromLocal8Bit(std::strerror(printError)));
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

void addOption(QCommandLineParser &parser, const char *name, const char *text, const char *value,
    const QString &byDefault)
{
    parser.addOption({ QLatin1String(name), QLatin1String(text), QLatin1String(value), byDefault });
}

std::optional<int> parseCommandLine(QCommandLineParser &parser)
{
    addOption(parser, "help", "Print this text.");
    addOption(parser, "version", "Print the version.");
    if (!parser.parse(QCoreApplication::arguments()))
        return failure(wrongUsage, parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        for (const QString &line : parser.helpText().split(QLatin1Char('\n')))
            print(stdout, line);
        return statusOfOutput(0);
    }
    if (parser.isSet(QStringLiteral("version"))) {
        print(stdout, QCoreApplication::applicationName() + QLatin1Char(' ') + consoleVersion);
        return statusOfOutput(0);
    }
    for (const QString &option : parser.optionNames()) {
        if (parser.values(option).contains(QString()))
            return failure(wrongUsage, QStringLiteral("--%1 needs a value").arg(option));
    }
    if (!parser.positionalArguments().isEmpty())
        return failure(
            wrongUsage, QStringLiteral("unexpected ") + parser.positionalArguments().first());
    return std::nullopt;
}
