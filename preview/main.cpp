// The console on a simulated device for any menu definition.
#include "platform/DevicePaths.h"
#include "preview/Preview.h"

int main(int argc, char **argv)
{
    return runPreview(argc, argv, { DevicePaths().webRoot, {} });
}
