// Runs of the backend tool, the floor of whatever the console does with it.
#pragma once

#include "bench/session/Statistics.h"

#include <QStringList>

class DemoDevice;

/// Consecutive runs of the tool: the time of each in µs, and the total.
struct ToolRuns {
    QVector<QStringList> calls;
    QVector<Samples> us;
    Samples sums;

    void measure();
};

struct RecordedRuns {
    ToolRuns start;
    ToolRuns open;
    ToolRuns close;
};

/// The calls that `console` makes on a device: at its start, and when a screen is opened and
/// closed.
RecordedRuns recordRuns(const QString &console, DemoDevice &device);
