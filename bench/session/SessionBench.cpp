// Measures whole sessions on a terminal: the console's, any other program's, and their floors.
#include "bench/session/Devices.h"
#include "bench/session/Measurement.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numeric>

namespace {

constexpr const char *usageText =
    "Usage: session [--runs N] [--keys N] [-- COMMAND [ARGUMENT...]]...\n"
    "\n"
    "Measures the console on simulated devices, what it cannot be faster than, and\n"
    "any other COMMAND, on a terminal of 80 x 24.\n"
    "\n"
    "  --runs N  start everything N times (30)\n"
    "  --keys N  type each key N times (100)\n"
    "\n"
    "A COMMAND gets Return as the key that opens, two Esc as the key that closes.\n";

struct Options {
    int runs = 30;
    int keys = 100;
    std::vector<Subject> others;
};

bool readOptions(int argc, char **argv, Options &options)
{
    int index = 1;
    for (; index + 1 < argc && std::strcmp(argv[index], "--") != 0; index += 2) {
        const int number = std::atoi(argv[index + 1]);
        if (number <= 0)
            return false;
        if (std::strcmp(argv[index], "--runs") == 0)
            options.runs = number;
        else if (std::strcmp(argv[index], "--keys") == 0)
            options.keys = number;
        else
            return false;
    }
    for (; index < argc; ++index) {
        if (std::strcmp(argv[index], "--") == 0)
            options.others.push_back({ "", {}, "\x1b\x1b" });
        else if (options.others.empty())
            return false;
        else
            options.others.back().command.push_back(argv[index]);
    }
    for (Subject &other : options.others) {
        if (other.command.empty())
            return false;
        other.name = other.command.front();
    }
    return true;
}

void heading(const char *title, const char *columns)
{
    std::printf("\n%-34s %s\n", title, columns);
}

void row(const std::string &name, const Samples &us, double floor, double unit, double bytes)
{
    std::printf("%-34.34s %9.2f %9.2f", name.c_str(), median(us) / unit, quantile(us, 0.95) / unit);
    if (floor > 0)
        std::printf(" %7.2f", median(us) / floor);
    else
        std::printf(" %7s", "-");
    if (bytes > 0)
        std::printf(" %8.0f", bytes);
    std::printf("\n");
}

std::string nameOf(const Command &call)
{
    std::string name = "tool";
    for (size_t i = 1; i < call.size(); ++i)
        name += ' ' + call[i];
    return name;
}

// Consecutive runs of the tool: the time of each, and the total.
struct ToolRuns {
    std::vector<Command> calls;
    std::vector<Samples> us;
    Samples sums;

    void measure()
    {
        us.resize(calls.size());
        double sum = 0;
        for (size_t i = 0; i < calls.size(); ++i) {
            us[i].push_back(runUs(calls[i]));
            sum += us[i].back();
        }
        sums.push_back(sum);
    }

    void print(const char *sumName) const
    {
        for (size_t i = 0; i < calls.size(); ++i)
            row(nameOf(calls[i]), us[i], 0, 1000, 0);
        row(sumName, sums, 0, 1000, 0);
    }
};

// The terminal puts a carriage return before each line feed.
std::string asWritten(std::string shown)
{
    for (size_t place = 0; (place = shown.find("\r\n", place)) != std::string::npos; ++place)
        shown.erase(place, 1);
    return shown;
}

struct RecordedRuns {
    ToolRuns start;
    ToolRuns open;
    ToolRuns close;
};

RecordedRuns recordRuns(DemoDevice &device)
{
    RecordedRuns runs;
    device.recordCalls(true);
    Program console(device.console());
    console.firstFrame();
    runs.start.calls = device.takeCalls();
    console.press("\n");
    runs.open.calls = device.takeCalls();
    console.press("\n");
    runs.close.calls = device.takeCalls();
    device.recordCalls(false);
    return runs;
}

class Report {
public:
    explicit Report(const Options &options)
        : options(options)
        , tools(recordRuns(demo))
    {
        consoles = { { "console, demo device", demo.console(), "\n" },
            { "console, 40 items", small.console(), {} },
            { "console, 5,000 items, spelled out", spelledOut.console(), {} },
            { "console, 5,000 items", large.console(), {} },
            { "console, 10,000 items", largest.console(), {} } };
        consoles.insert(consoles.end(), options.others.begin(), options.others.end());

        Start start;
        measureStart(consoles.front(), start);
        writeFile(files.path / "frame", asWritten(start.frame));
        Keys keys;
        measureKeys(consoles.front(), 1, keys);
        writeFile(files.path / "answer", keys.downAnswer);
        qtFloor = { "QtCore and script engine", { DRAVIKON_QT_FLOOR, files.path / "frame" }, {} };
        twoRows = { "the same bytes from C",
            { DRAVIKON_TWO_ROWS, files.path / "frame", files.path / "answer" }, {} };
    }

    void printStarts()
    {
        // In turns, so that a disturbance of the machine affects all programs alike.
        Samples empty;
        Start floor;
        std::vector<Start> starts(consoles.size());
        for (int run = 0; run < options.runs; ++run) {
            empty.push_back(runUs({ DRAVIKON_EMPTY }));
            measureStart(qtFloor, floor);
            tools.start.measure();
            for (size_t i = 0; i < consoles.size(); ++i)
                measureStart(consoles[i], starts[i]);
            tools.open.measure();
            tools.close.measure();
        }
        heading("Processes, start to end", "median ms    95 %");
        row("empty process", empty, 0, 1000, 0);
        tools.start.print("all of a start");
        tools.open.print("all of an opening");
        tools.close.print("all of a closing");

        const double floorUs = median(floor.us) + median(tools.start.sums);
        heading("First frame", "median ms    95 %  ratio    bytes");
        row(qtFloor.name, floor.us, 0, 1000, double(floor.frame.size()));
        row("the same and the tool's runs", { floorUs }, 0, 1000, 0);
        for (size_t i = 0; i < consoles.size(); ++i)
            row(consoles[i].name, starts[i].us, floorUs, 1000, double(starts[i].frame.size()));
        heading("Peak resident memory", "median KiB   95 %  ratio");
        row(qtFloor.name, floor.peakKiB, 0, 1, 0);
        for (size_t i = 0; i < consoles.size(); ++i)
            row(consoles[i].name, starts[i].peakKiB, median(floor.peakKiB), 1, 0);
    }

    void printKeys()
    {
        Keys floor;
        std::vector<Keys> keys(consoles.size());
        for (size_t i = 0; i < consoles.size(); ++i) {
            measureKeys(twoRows, options.keys, floor);
            measureKeys(consoles[i], options.keys, keys[i]);
        }
        printKey("Down", &Keys::down, keys, floor.down, median(floor.down.us), 1);
        printKey("Page Down", &Keys::pageDown, keys, floor.pageDown, median(floor.pageDown.us), 1);
        printKey("Opening (ms)", &Keys::open, keys, {}, median(tools.open.sums), 1000);
        printKey("Closing (ms)", &Keys::close, keys, {}, median(tools.close.sums), 1000);
        heading("A Down or Up", "   CPU us   writes");
        printCost(twoRows.name, floor.down);
        for (size_t i = 0; i < consoles.size(); ++i)
            printCost(consoles[i].name, keys[i].down);
    }

    void printIdle()
    {
        heading("Five seconds without a key", "   CPU us wake-ups switches");
        for (const Subject &console : consoles) {
            const Usage usage = measureIdle(console);
            std::printf("%-34.34s %9.0f %8.0f %8.0f\n", console.name.c_str(), usage.cpuUs,
                usage.wakeUps, usage.switches);
        }
    }

private:
    void printKey(const char *title, Key Keys::*key, const std::vector<Keys> &keys,
        const Key &floor, double floorUs, double unit)
    {
        heading(title, "   median      95 %  ratio    bytes");
        if (!floor.us.empty())
            row(twoRows.name, floor.us, 0, unit, median(floor.bytes));
        for (size_t i = 0; i < consoles.size(); ++i) {
            const Key &measured = keys[i].*key;
            // The calls were logged on the demo device.
            const bool hasFloor = !floor.us.empty() || i == 0;
            if (!measured.us.empty()) {
                row(consoles[i].name, measured.us, hasFloor ? floorUs : 0, unit,
                    median(measured.bytes));
            }
        }
    }

    static void printCost(const std::string &name, const Key &key)
    {
        std::printf("%-34.34s %9.1f %8.2f\n", name.c_str(), key.cpuUs, key.writes);
    }

    const Options &options;
    DemoDevice demo;
    const LargeDevice small { 40, LargeDevice::Loop };
    const LargeDevice spelledOut { 5000, LargeDevice::SpelledOut };
    const LargeDevice large { 5000, LargeDevice::Loop };
    const LargeDevice largest { 10000, LargeDevice::Loop };
    const TemporaryDirectory files;
    RecordedRuns tools;
    std::vector<Subject> consoles;
    Subject qtFloor;
    Subject twoRows;
};

} // namespace

int main(int argc, char **argv)
{
    Options options;
    if (!readOptions(argc, argv, options)) {
        std::fputs(usageText, stderr);
        return 2;
    }
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    Report report(options);
    report.printStarts();
    report.printKeys();
    report.printIdle();
    return 0;
}
