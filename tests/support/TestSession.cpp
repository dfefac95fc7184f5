// The console on the paths of a fake device: dravikon-test-session WEBROOT SCRIPT TOOL IDLE_MS.
#include "app/Session.h"

#include <QByteArray>

int main(int argc, char **argv)
{
    const SessionOptions options { { QString::fromLocal8Bit(argv[1]),
                                       QString::fromLocal8Bit(argv[2]),
                                       QString::fromLocal8Bit(argv[3]) },
        QByteArray(argv[4]).toInt() };
    argc = 1;
    return runSession(argc, argv, options);
}
