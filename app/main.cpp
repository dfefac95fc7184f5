// The product: the console on the device's own paths.
#include "app/Session.h"

int main(int argc, char **argv)
{
    return runSession(argc, argv);
}
