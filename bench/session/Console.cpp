// The console on any device: bench-console WEB_ROOT TOOL.
#include "app/Session.h"

#include <QFile>

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    SessionOptions options;
    options.paths.webRoot = QFile::decodeName(argv[1]);
    options.paths.settingsScript = options.paths.webRoot + QLatin1String("/scripts/settings.js");
    options.paths.backendTool = QFile::decodeName(argv[2]);
    int ownArguments = 1;
    return runSession(ownArguments, argv, options);
}
