// One run of the console: command line, start-up order, exit status.
#pragma once

#include "menu/ScriptHelper.h"

/// What a session runs on; the product takes the defaults.
struct SessionOptions {
    DevicePaths paths;
    int idleMs = 180000; ///< the session ends after this many milliseconds without a key
    ToolRunner runTool = {}; ///< if set, takes the place of running the tool at its path
};

/// Runs the console as the command line asks: version, usage text, or the interactive session.
/// Returns the process exit status: 0 when the session ended, 80 when the user asked for the local
/// shell, -1 (255) after the version or usage text, 2 when that text could not be written. Works
/// once a process: it leaves its signal handlers, with which SIGINT has no further effect, SIGWINCH
/// blocked and SIGPIPE ignored, and no backend tool can be run any more.
int runSession(int &argc, char **argv, const SessionOptions &options = {});
