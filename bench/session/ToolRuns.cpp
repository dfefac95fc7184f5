#include "bench/session/ToolRuns.h"

#include "bench/session/Devices.h"
#include "bench/session/Program.h"
#include "bench/session/RunTime.h"
#include "terminal/Keys.h"

void ToolRuns::measure()
{
    us.resize(calls.size());
    double sum = 0;
    for (int i = 0; i < calls.size(); ++i) {
        us[i] += runUs(calls.at(i));
        sum += us.at(i).last();
    }
    sums += sum;
}

RecordedRuns recordRuns(const QString &console, DemoDevice &device)
{
    RecordedRuns runs;
    Program program(QStringList(console) + device.recordedArguments());
    program.firstFrame();
    runs.start.calls = device.takeCalls();
    program.press(Key::enter);
    runs.open.calls = device.takeCalls();
    program.press(Key::enter);
    runs.close.calls = device.takeCalls();
    return runs;
}
