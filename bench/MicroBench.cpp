// Runs the benchmarks of single functions.
#include "locale/CTranslationHandler.h"

#include "tests/support/FakeDevice.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

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
    FakeDevice webInterface;
    webInterface.setTranslations(translations());
    CTranslationHandler::setInstanceRoot(webInterface.paths().webRoot);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
