// Runs the benchmarks of single functions.
#include "bench/DeviceFiles.h"
#include "locale/CTranslationHandler.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

// The number of texts in a typical translation table.
QByteArray translations()
{
    QByteArray table = "{ \"last\": \"\"";
    for (int number = 0; number < 1000; ++number) {
        const QByteArray digits = QByteArray::number(number);
        table += ", \"field_" + digits + "\": \"Field number " + digits + '"';
    }
    return table + " }";
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    // Warnings about the generated definitions are of no interest.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    // Sessions take their size from standard input: 80 x 24 where it is no terminal.
    if (!std::freopen("/dev/null", "r", stdin))
        return 1;
    DeviceFiles webInterface;
    webInterface.writeTranslations(translations());
    CTranslationHandler::setInstanceRoot(webInterface.webRoot());
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
