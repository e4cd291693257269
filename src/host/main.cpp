#include "app/HostApplication.h"

int main(int argc, char** argv)
{
    return HostApplication::Main(argc, argv);
}
