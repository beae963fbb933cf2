// The version that a program is compiled with, in both forms, and the one that it runs with.

#include "OmbrelVersion.h"

#include <iostream>

int main()
{
    std::cout << OMBREL_VERSION_STRING << ", as numbers " << OMBREL_VERSION_MAJOR << "." << OMBREL_VERSION_MINOR << "."
              << OMBREL_VERSION_PATCH << ", library " << Ombrel::GetVersion() << "\n";
}
