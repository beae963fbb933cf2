// Uses the library from the first to the last instruction of a program:
//   program         before every other initialiser, in ordinary ones, in `main`, in exit handlers and in destructors
//   program worker  on a thread that is at work while `main` returns and the process ends

#include "UseAll.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace
{

struct First
{
    First()
    {
        Lifetime::UseAll("first initialiser");
        std::atexit([] { Lifetime::UseAll("exit handler before the library's own"); });
    }

    First(const First&) = delete;
    First& operator=(const First&) = delete;
    ~First() { Lifetime::UseAll("last destructor"); }
};

struct Ordinary
{
    Ordinary()
    {
        Lifetime::UseAll("initialiser");
        Lifetime::UseConstants("initialiser");
    }

    Ordinary(const Ordinary&) = delete;
    Ordinary& operator=(const Ordinary&) = delete;

    ~Ordinary()
    {
        Lifetime::UseAll("destructor");
        Lifetime::UseConstants("destructor");
    }
};

__attribute__((init_priority(101))) const First g_first;
const Ordinary g_ordinary;

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "worker") == 0)
    {
        std::thread(
            []
            {
                for (;;)
                {
                    Lifetime::UseAll("worker");
                }
            })
            .detach();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        return 0;
    }
    std::atexit([] { Lifetime::UseAll("exit handler"); });
    Lifetime::UseAll("main");
    Lifetime::UseConstants("main");
    std::puts("main");
}
