#include <cstdio>

#include "care/CareSdk.h"

// A program that runs with an SDK of the phonebook alone knows that it cannot import, and does not need to.
int main()
{
    if (CareSdk::IsThere() || CareSdk::HasImport()) {
        std::puts("an SDK that is not there is taken to be");
        return 1;
    }
    return 0;
}
