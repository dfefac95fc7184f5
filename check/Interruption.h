// The end of the program by a signal.
#pragma once

/// From now on SIGINT, SIGTERM, SIGHUP and SIGQUIT kill a running backend tool before they end the
/// program. To be called by the main thread, which is the one that runs tools.
void killToolOnInterruption();
