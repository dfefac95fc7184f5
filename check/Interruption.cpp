#include "check/Interruption.h"

#include "backend/BackendTool.h"

#include <csignal>

#include <pthread.h>

namespace {

pthread_t mainThread;

// The main thread blocks signals while it starts a tool; the script engine's thread does not and
// would not find the tool yet.
void endWithTool(int number)
{
    if (pthread_equal(pthread_self(), mainThread) == 0) {
        pthread_kill(mainThread, number);
        return;
    }
    BackendTool::killRunning();
    // Ends the program as soon as the handler returns, which blocks the signal.
    std::signal(number, SIG_DFL);
    std::raise(number);
}

} // namespace

void killToolOnInterruption()
{
    mainThread = pthread_self();
    for (const int number : { SIGINT, SIGTERM, SIGHUP, SIGQUIT }) {
        // Who started the program may have it ignore some, as nohup does.
        if (std::signal(number, endWithTool) == SIG_IGN)
            std::signal(number, SIG_IGN);
    }
}
