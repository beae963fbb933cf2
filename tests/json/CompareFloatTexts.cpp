#include "PropertyTreeJson/PropertyTreeJson.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

// compare-float-texts COUNT SEED: COUNT random floats as JSON text and as the standard library writes them. Those of few
// digits, which the writer has a way of its own for, are as many as those of any bits.
namespace
{

using namespace Ombrel;

class Floats
{
public:
    explicit Floats(std::uint64_t seed) : m_engine(seed) {}

    double Next()
    {
        switch (m_engine() % 4)
        {
        case 0:
            return std::bit_cast<double>(m_engine());
        case 1:
            return std::nextafter(OfFewDigits(), m_engine() % 2 == 0 ? 0.0 : std::numeric_limits<double>::infinity());
        case 2:
            return static_cast<double>(static_cast<float>(OfFewDigits()));
        default:
            return OfFewDigits();
        }
    }

private:
    // At most as many digits as a float holds, with the point before, behind or between them.
    double OfFewDigits()
    {
        const std::uint64_t digits = m_engine() >> (10 + m_engine() % 54);
        const double size = static_cast<double>(digits) / std::pow(10.0, static_cast<double>(m_engine() % 12));
        return m_engine() % 2 == 0 ? size : -size;
    }

    std::mt19937_64 m_engine;
};

std::string Expected(double value)
{
    std::array<char, 32> space;
    const auto result = std::to_chars(space.data(), space.data() + space.size(), value);
    const std::string text(space.data(), result.ptr);
    return text.find_first_of(".e") == std::string::npos ? text + ".0" : text;
}

// Whether the text of `value` is as expected and reads back as the same bits.
bool IsRight(double value)
{
    static std::string text;
    text.clear();
    AppendJson(text, PropertyTree(value));
    return text == Expected(value) &&
           std::bit_cast<std::uint64_t>(ReadJson(text).getScalar().toDouble()) == std::bit_cast<std::uint64_t>(value);
}

std::uint64_t NumberOf(std::string_view text)
{
    std::uint64_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

} // namespace

int main(int argc, char** argv)
{
    const std::uint64_t count = argc == 3 ? NumberOf(argv[1]) : 0;
    if (count == 0)
    {
        std::cerr << "usage: compare-float-texts COUNT SEED\n";
        return EXIT_FAILURE;
    }
    Floats floats(NumberOf(argv[2]));
    for (std::uint64_t i = 0; i < count; ++i)
    {
        const double value = floats.Next();
        if (std::isfinite(value) && !IsRight(value))
        {
            std::cerr << "FAILED: " << Expected(value) << " is written as " << WriteJson(value) << "\n";
            return EXIT_FAILURE;
        }
    }
    std::cout << count << " floats\n";
    return EXIT_SUCCESS;
}
