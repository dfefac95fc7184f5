// The console on the device in the directory that is its argument.
#include "app/Session.h"

#include <QFile>

int main(int argc, char **argv)
{
    SessionOptions options;
    options.paths.webRoot = QFile::decodeName(argc > 1 ? argv[1] : "");
    options.paths.settingsScript = options.paths.webRoot + QLatin1String("/settings.js");
    options.paths.backendTool = options.paths.webRoot + QLatin1String("/DBusController");
    int ownArguments = 1;
    return runSession(ownArguments, argv, options);
}
