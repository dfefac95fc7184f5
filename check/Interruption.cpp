#include "check/Interruption.h"

#include "backend/BackendTool.h"
#include "check/ProgressLine.h"

#include <csignal>

namespace {

void endWithTool(int number)
{
    BackendTool::killRunning();
    clearProgress();
    // The signal is blocked while its handler runs; it ends the program when the handler returns.
    std::signal(number, SIG_DFL);
    std::raise(number);
}

} // namespace

void killToolOnInterruption()
{
    for (const int number : { SIGINT, SIGTERM, SIGHUP, SIGQUIT }) {
        // Who started the program may have it ignore some, as nohup does.
        if (std::signal(number, endWithTool) == SIG_IGN)
            std::signal(number, SIG_IGN);
    }
}
