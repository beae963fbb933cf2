#include "Comparison.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <map>
#include <regex>
#include <utility>

// Has its name in the program, by which callgrind's count is switched on and off.
extern "C" [[gnu::noinline]] void Measured(const std::function<void()>& work)
{
    work();
}

namespace Ombrel::Benchmarks
{
namespace
{

std::map<std::string, std::function<void(int)>>& MeasuredRuns()
{
    static std::map<std::string, std::function<void(int)>> runs;
    return runs;
}

// Boost.JSON 1.81 reads some doubles one step beside the nearest.
bool IsSame(const nlohmann::json& a, const nlohmann::json& b, double tolerance)
{
    if (a.is_number_float() && b.is_number_float())
    {
        return std::abs(a.get<double>() - b.get<double>()) <= std::abs(a.get<double>()) * tolerance;
    }
    if (!a.is_structured() || a.type() != b.type())
    {
        return a == b;
    }
    // Both are walked in the same order: of the positions in a list or of the keys in a map.
    const auto isSameChild = [tolerance](const auto& x, const auto& y) { return IsSame(x, y, tolerance); };
    const auto isSameEntry = [tolerance](const auto& x, const auto& y)
    { return x.first == y.first && IsSame(x.second, y.second, tolerance); };
    using List = nlohmann::json::array_t;
    using Map = nlohmann::json::object_t;
    return a.is_array() ? std::ranges::equal(a.get_ref<const List&>(), b.get_ref<const List&>(), isSameChild)
                        : std::ranges::equal(a.get_ref<const Map&>(), b.get_ref<const Map&>(), isSameEntry);
}

} // namespace

bool IsWanted(const std::string& name)
{
    std::string filter = benchmark::GetBenchmarkFilter();
    if (filter.empty() || filter == "all")
    {
        return true;
    }
    const bool isNegative = filter.starts_with('-'); // as Google Benchmark has it
    return std::regex_search(name, std::regex(filter.substr(isNegative ? 1 : 0), std::regex::extended)) != isNegative;
}

bool RunMeasured(const std::string& benchmark, int count)
{
    const auto found = MeasuredRuns().find(benchmark);
    if (found == MeasuredRuns().end())
    {
        return false;
    }
    found->second(count);
    return true;
}

void AddMeasured(const std::string& benchmark, std::function<void(int)> run)
{
    MeasuredRuns()[benchmark] = std::move(run);
}

void Measure(const std::function<void()>& work)
{
    Measured(work);
}

void Row::Check(const std::string& name, nlohmann::json result)
{
    if (!m_expected)
    {
        m_expected = std::move(result);
        m_first = name;
    }
    else if (!IsSame(*m_expected, result, name.find("/boost") == std::string::npos ? 0 : 1e-15))
    {
        std::cerr << name << " does something else than " << m_first << ", as a JSON patch:\n"
                  << nlohmann::json::diff(*m_expected, result).dump(2) << '\n';
        std::exit(EXIT_FAILURE);
    }
}

} // namespace Ombrel::Benchmarks
