// The console on the demo's definition, with values made by hand.
#include "preview/Preview.h"

int main(int argc, char **argv)
{
    return runPreview(argc, argv,
        { QStringLiteral(DRAVIKON_DEMO_WEB_ROOT), QStringLiteral(DRAVIKON_DEMO_VALUES) });
}
