// The backend tool of the simulated device.
#pragma once

/// One run of the tool: does what the arguments say on the state beside the link by which the tool
/// was called, and prints one JSON list. Returns the exit status, 1 when there is no answer.
int runSimulatedTool(int argc, char **argv);
