// The console on a simulated device for any menu definition.
#include "device/DevicePaths.h"
#include "preview/Preview.h"

int main(int argc, char **argv)
{
    return runPreview(argc, argv, { DevicePaths().webRoot, {} });
}
