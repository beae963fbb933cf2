// Loads and unloads a shared library some hundred times and prints the median time of loading it, in microseconds.

#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <vector>

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::cerr << "usage: ombrel_loading library\n";
        return EXIT_FAILURE;
    }
    std::vector<double> times;
    for (int round = 0; round < 301; ++round)
    {
        const auto start = std::chrono::steady_clock::now();
        void* library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
        const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
        if (!library)
        {
            std::cerr << dlerror() << '\n';
            return EXIT_FAILURE;
        }
        times.push_back(time.count());
        dlclose(library);
    }
    std::ranges::nth_element(times, times.begin() + 150);
    std::cout << times[150] << '\n';
}
