// The console on a device that need not be there: `dravikon-preview`, and the demo.
#pragma once

#include <QString>

/// The definition to preview unless the command line names one.
struct PreviewDefaults {
    QString webRoot; ///< of the menu definition
    QString values; ///< file with values of a device for that definition; empty for none
};

/// Runs the program as the command line says and returns its exit status: that of the session, 1
/// when there can be no simulated device, 2 for wrong usage and when the report after the session
/// could not be printed. The same program is the backend tool of the simulated device, by the name
/// of that tool.
int runPreview(int argc, char **argv, const PreviewDefaults &defaults);
