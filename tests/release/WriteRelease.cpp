#include "release/FrozenRelease.h"

#include <cstdio>
#include <exception>

int main(int count, char** arguments)
{
    if (count != 4)
    {
        std::fputs("usage: write-release RELEASE FOLDER SOURCE\n", stderr);
        return 2;
    }
    try
    {
        Release::WriteRelease(arguments[1], arguments[2], arguments[3]);
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
