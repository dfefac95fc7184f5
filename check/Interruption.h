// The end of the program by a signal.
#pragma once

/// From now on SIGINT, SIGTERM, SIGHUP and SIGQUIT kill a running backend tool before they end the
/// program.
void killToolOnInterruption();
