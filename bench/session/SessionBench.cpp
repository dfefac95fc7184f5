// Measures whole sessions on a terminal: the console's, any other program's, and their floors.
#include "bench/session/Report.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace {

const QString description = QStringLiteral(
    "Measures the console on simulated devices, what it cannot be faster than, and any\n"
    "other COMMAND, on a terminal of 80 x 24. A COMMAND gets Return as the key that opens,\n"
    "two Esc as the key that closes.");
const QString syntax = QStringLiteral("[options] [-- COMMAND [ARGUMENT...]]...");

/// Takes the commands off the end of the arguments.
QVector<QStringList> takeCommands(QStringList &arguments)
{
    QVector<QStringList> commands;
    for (int place; (place = arguments.lastIndexOf(QStringLiteral("--"))) >= 0;) {
        commands.prepend(arguments.mid(place + 1));
        arguments = arguments.mid(0, place);
    }
    return commands;
}

QCommandLineOption numberOption(const char *name, const char *what, int standard)
{
    QCommandLineOption option(
        QString::fromLatin1(name), QString::fromLatin1(what), QStringLiteral("N"));
    option.setDefaultValue(QString::number(standard));
    return option;
}

/// Reads the command line. Returns what is wrong with it, empty when nothing is.
QString readOptions(Options &options)
{
    QStringList arguments = QCoreApplication::arguments();
    options.others = takeCommands(arguments);

    QCommandLineParser parser;
    const QCommandLineOption runs = numberOption("runs", "Start everything N times.", options.runs);
    const QCommandLineOption keys = numberOption("keys", "Type each key N times.", options.keys);
    const QCommandLineOption before(QStringLiteral("before"),
        QStringLiteral("Measure FILE, too, the bench-console of another build."),
        QStringLiteral("FILE"));
    parser.setApplicationDescription(description);
    parser.addOptions({ runs, keys, before });
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("COMMAND"), {}, syntax);
    parser.process(arguments);

    options.runs = parser.value(runs).toInt();
    options.keys = parser.value(keys).toInt();
    options.consoleBefore = parser.value(before);
    if (options.runs <= 0 || options.keys <= 0)
        return QStringLiteral("--runs and --keys take a number above 0");
    if (!parser.positionalArguments().isEmpty() || options.others.contains({}))
        return QStringLiteral("a COMMAND follows a \"--\"");
    for (const QStringList &other : options.others) {
        const QString reason = whyUnfit(other);
        if (!reason.isEmpty())
            return QStringLiteral("%1 %2").arg(other.first(), reason);
    }
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    Options options;
    const QString fault = readOptions(options);
    if (!fault.isEmpty()) {
        std::fprintf(stderr, "session: %s\n", qPrintable(fault));
        return 2;
    }
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    Report report(options);
    report.printStarts();
    report.printKeys();
    report.printHeldKeys();
    report.printIdle();
    return 0;
}
