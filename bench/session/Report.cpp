#include "bench/session/Report.h"

#include "bench/session/HeldKey.h"
#include "bench/session/RunTime.h"
#include "terminal/Keys.h"

#include <cstdio>

namespace {

void heading(const char *title, const char *columns)
{
    std::printf("\n%-34s %s\n", title, columns);
}

void row(const QString &name, const Samples &us, double floor, double unit, double bytes)
{
    std::printf(
        "%-34.34s %9.2f %9.2f", qPrintable(name), median(us) / unit, quantile(us, 0.95) / unit);
    if (floor > 0)
        std::printf(" %7.2f", median(us) / floor);
    else
        std::printf(" %7s", "-");
    if (bytes > 0)
        std::printf(" %8.0f", bytes);
    std::printf("\n");
}

void rows(const ToolRuns &runs, const QString &sumName)
{
    for (int i = 0; i < runs.calls.size(); ++i) {
        const QStringList words = QStringList(QStringLiteral("tool")) + runs.calls.at(i).mid(1);
        row(words.join(QLatin1Char(' ')), runs.us.at(i), 0, 1000, 0);
    }
    row(sumName, runs.sums, 0, 1000, 0);
}

} // namespace

Report::Report(const Options &options)
    : options(options)
    , tools(recordRuns(QStringLiteral(DRAVIKON_BENCH_CONSOLE), demo))
{
    addConsole(QStringLiteral("console"), QStringLiteral(DRAVIKON_BENCH_CONSOLE));
    if (!options.consoleBefore.isEmpty())
        addConsole(QStringLiteral("before"), options.consoleBefore);
    consoleCount = subjects.size();
    for (const QStringList &other : options.others)
        subjects += { other.first(), other, Key::escape };
    makeFloors();
}

void Report::addConsole(const QString &name, const QString &program)
{
    const QStringList command(program);
    subjects +=
        { { name + QStringLiteral(", demo device"), command + demo.arguments(), Key::enter },
            { name + QStringLiteral(", 40 items"), command + small.arguments(), {} },
            { name + QStringLiteral(", 5,000 items, spelled out"), command + spelledOut.arguments(),
                {} },
            { name + QStringLiteral(", 5,000 items"), command + large.arguments(), {} },
            { name + QStringLiteral(", 10,000 items"), command + largest.arguments(), {} } };
}

void Report::makeFloors()
{
    const QString frame = QStringLiteral("frame");
    const QString answer = QStringLiteral("answer");
    Start start;
    measureStart(subjects.first(), start);
    // The terminal puts a carriage return before each line feed.
    files.write(frame, start.frame.replace("\r\n", "\n"));
    Keys keys;
    measureKeys(subjects.first(), 1, keys);
    files.write(answer, keys.downAnswer);
    qtFloor = { QStringLiteral("QtCore and script engine"),
        { QStringLiteral(DRAVIKON_QT_FLOOR), files.path(frame) }, {} };
    twoRows = { QStringLiteral("the same bytes from C"),
        { QStringLiteral(DRAVIKON_TWO_ROWS), files.path(frame), files.path(answer) }, {} };
}

void Report::printStarts()
{
    // In turns, so that a disturbance of the machine affects all programs alike.
    Samples empty;
    Start floor;
    QVector<Start> starts(subjects.size());
    for (int run = 0; run < options.runs; ++run) {
        empty += runUs({ QStringLiteral(DRAVIKON_EMPTY) });
        measureStart(qtFloor, floor);
        tools.start.measure();
        for (int i = 0; i < subjects.size(); ++i)
            measureStart(subjects.at(i), starts[i]);
        tools.open.measure();
        tools.close.measure();
    }
    heading("Processes, start to end", "median ms    95 %");
    row(QStringLiteral("empty process"), empty, 0, 1000, 0);
    rows(tools.start, QStringLiteral("all of a start"));
    rows(tools.open, QStringLiteral("all of an opening"));
    rows(tools.close, QStringLiteral("all of a closing"));

    const double floorUs = median(floor.us) + median(tools.start.sums);
    heading("First frame", "median ms    95 %  ratio    bytes");
    row(qtFloor.name, floor.us, 0, 1000, floor.frame.size());
    row(QStringLiteral("the same and the tool's runs"), { floorUs }, 0, 1000, 0);
    for (int i = 0; i < subjects.size(); ++i)
        row(subjects.at(i).name, starts.at(i).us, floorUs, 1000, starts.at(i).frame.size());
    heading("Peak resident memory", "median KiB   95 %  ratio");
    row(qtFloor.name, floor.peakKiB, 0, 1, 0);
    for (int i = 0; i < subjects.size(); ++i)
        row(subjects.at(i).name, starts.at(i).peakKiB, median(floor.peakKiB), 1, 0);
}

void Report::printKeys()
{
    // In rounds, so that a disturbance of the machine affects all programs alike.
    constexpr int roundSize = 10;
    Keys floor;
    QVector<Keys> keys(subjects.size());
    for (int rest = options.keys; rest > 0; rest -= roundSize) {
        for (int i = 0; i < subjects.size(); ++i) {
            measureKeys(twoRows, qMin(rest, roundSize), floor);
            measureKeys(subjects.at(i), qMin(rest, roundSize), keys[i]);
        }
    }
    printKey("Down", &Keys::down, keys, floor.down, median(floor.down.us), 1);
    printKey("Page Down", &Keys::pageDown, keys, floor.pageDown, median(floor.pageDown.us), 1);
    printKey("Opening (ms)", &Keys::open, keys, {}, median(tools.open.sums), 1000);
    printKey("Closing (ms)", &Keys::close, keys, {}, median(tools.close.sums), 1000);
    printCosts(keys, floor);
}

void Report::printKey(const char *title, KeySamples Keys::*key, const QVector<Keys> &keys,
    const KeySamples &floor, double floorUs, double unit)
{
    heading(title, "   median      95 %  ratio    bytes");
    if (!floor.us.isEmpty())
        row(twoRows.name, floor.us, 0, unit, median(floor.bytes));
    for (int i = 0; i < subjects.size(); ++i) {
        const KeySamples &measured = keys.at(i).*key;
        if (measured.us.isEmpty())
            continue;
        // The tool's runs are the floor of consoles on the demo device alone.
        const bool hasFloor = !floor.us.isEmpty() || i < consoleCount;
        row(subjects.at(i).name, measured.us, hasFloor ? floorUs : 0, unit, median(measured.bytes));
    }
}

void Report::printCosts(const QVector<Keys> &keys, const Keys &floor) const
{
    const auto costs = [](const QString &name, const KeySamples &key) {
        std::printf(
            "%-34.34s %9.1f %8.2f\n", qPrintable(name), median(key.cpuUs), median(key.writes));
    };
    heading("A Down or Up", "   CPU us   writes");
    costs(twoRows.name, floor.down);
    for (int i = 0; i < subjects.size(); ++i)
        costs(subjects.at(i).name, keys.at(i).down);
    for (int i = 0; i < subjects.size(); ++i) {
        if (keys.at(i).hasEnded)
            std::printf("%s ended after a key\n", qPrintable(subjects.at(i).name));
    }
}

void Report::printHeldKeys()
{
    heading("Down held 2 s, 960 bytes/s", "overrun s    bytes");
    for (const Subject &subject : subjects) {
        const HeldKey held = measureHeldDown(subject);
        std::printf(
            "%-34.34s %9.2f %8d\n", qPrintable(subject.name), held.overrunMs / 1000, held.bytes);
    }
}

void Report::printIdle()
{
    heading("Five seconds without a key", "   CPU us wake-ups switches");
    for (const Subject &subject : subjects) {
        const Usage usage = measureIdle(subject);
        std::printf("%-34.34s %9.0f %8.0f %8.0f\n", qPrintable(subject.name), usage.cpuUs,
            usage.wakeUps, usage.switches);
    }
}
