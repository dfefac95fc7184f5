// The tables of the benchmark.
#pragma once

#include "bench/session/Devices.h"
#include "bench/session/Measurement.h"
#include "bench/session/ToolRuns.h"

struct Options {
    int runs = 30;
    int keys = 100;
    QString consoleBefore; ///< `bench-console` of another build; empty for none
    QVector<QStringList> others; ///< commands of other programs
};

/// Measures the console on its devices, its floors and other programs, and prints a table for each
/// question.
class Report {
public:
    explicit Report(const Options &options);

    void printStarts();
    void printKeys();
    void printHeldKeys();
    void printIdle();

private:
    void makeFloors();
    void addConsole(const QString &name, const QString &program);
    void printKey(const char *title, KeySamples Keys::*key, const QVector<Keys> &keys,
        const KeySamples &floor, double floorUs, double unit);
    void printCosts(const QVector<Keys> &keys, const Keys &floor) const;

    const Options options;
    DemoDevice demo;
    const LargeDevice small { 40, LargeDevice::Loop };
    const LargeDevice spelledOut { 5000, LargeDevice::SpelledOut };
    const LargeDevice large { 5000, LargeDevice::Loop };
    const LargeDevice largest { 10000, LargeDevice::Loop };
    DeviceFiles files;
    RecordedRuns tools;
    QVector<Subject> subjects; ///< the console on the demo comes first
    int consoleCount = 0; ///< the subjects before those of the command line
    Subject qtFloor;
    Subject twoRows;
};
