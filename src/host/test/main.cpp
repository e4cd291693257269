#include "app/HostApplication.h"
#include "test/TestCompanion.h"

int main(int argc, char** argv)
{
    TestCompanion companion;
    return HostApplication::Main(argc, argv, &companion);
}
