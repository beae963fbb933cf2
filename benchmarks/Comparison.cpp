#include "Comparison.h"

#include <cstdlib>
#include <iostream>

namespace Ombrel::Benchmarks
{

void RequireSame(const std::string& benchmark, const nlohmann::json& result, const nlohmann::json& expected)
{
    if (result != expected)
    {
        std::cerr << benchmark << " does something else than " << HAND_WRITTEN << ", as a JSON patch:\n"
                  << nlohmann::json::diff(expected, result).dump(2) << '\n';
        std::exit(EXIT_FAILURE);
    }
}

} // namespace Ombrel::Benchmarks
