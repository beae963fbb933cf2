#include "Fuzz.h"

#include "Proc/EffectSettings/GradientSettings.h"
#include "Proc/EffectSettings/RotateSettings.h"
#include "Proc/Settings/RgbaColor.h"
#include "support/StoredForm.h"

#include <cerrno>
#include <cstdlib>
#include <functional>
#include <map>
#include <sstream>
#include <stdexcept>
#include <vector>

// The texts of colours, which the C library reads as the numbers that they are, alone and in the trees of effects.
namespace
{

using namespace Ombrel;
using Support::StoredForm;

enum class Outcome
{
    Read,
    NoDigit,
    TooLarge,
};

struct Reading
{
    Outcome outcome = Outcome::Read;
    std::uint32_t number = 0;
};

// A minus is taken of 32 bits, and what is too large is so before it.
Reading ExpectedOf(const std::string& text)
{
    errno = 0;
    char* end = nullptr;
    const unsigned long long value = std::strtoull(text.c_str(), &end, 16);
    if (end == text.c_str())
    {
        return {Outcome::NoDigit};
    }
    const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
    const bool isNegative = text[start] == '-';
    const unsigned long long magnitude = isNegative ? 0 - value : value;
    if (errno == ERANGE || magnitude > 0xffffffff)
    {
        return {Outcome::TooLarge};
    }
    return {Outcome::Read, static_cast<std::uint32_t>(value)};
}

Outcome OutcomeOf(const std::function<void()>& read)
{
    try
    {
        read();
    }
    catch (const std::invalid_argument& failure)
    {
        Fuzz::Require(failure.what() == std::string_view("invalid stoul argument"), "another text", failure.what());
        return Outcome::NoDigit;
    }
    catch (const std::out_of_range& failure)
    {
        Fuzz::Require(failure.what() == std::string_view("stoul argument out of range"), "another text", failure.what());
        return Outcome::TooLarge;
    }
    return Outcome::Read;
}

std::uint32_t NumberOf(const Proc::RgbaColor& color)
{
    return std::uint32_t{color.red} << 24 | std::uint32_t{color.green} << 16 | std::uint32_t{color.blue} << 8 |
           std::uint32_t{color.alpha};
}

std::string EightDigits(std::uint32_t number)
{
    std::ostringstream text;
    text << std::hex << number;
    return std::string(8 - text.str().size(), '0') + text.str();
}

void CheckText(const std::string& text)
{
    const Reading expected = ExpectedOf(text);
    Proc::RgbaColor color;
    Fuzz::Require(OutcomeOf([&] { color = Proc::ColorFromText(text); }) == expected.outcome, "another outcome", text);
    PhotoCore::RotateSettings effect;
    const auto access = effect.GetPropertyAccess();
    Fuzz::Require(OutcomeOf([&] { access->SetProperty("color", text); }) == expected.outcome, "another outcome in a tree",
                  text);
    if (expected.outcome == Outcome::Read)
    {
        Fuzz::Require(NumberOf(color) == expected.number, "another colour", text);
        Fuzz::Require(Proc::ToText(color) == EightDigits(expected.number), "another text of the colour", text);
        Fuzz::Require(Proc::ColorFromText(Proc::ToText(color)) == color, "a colour reads as another", text);
    }
    const std::string stored = expected.outcome == Outcome::Read ? EightDigits(expected.number) : "000000ff";
    Fuzz::RequireSame(stored, access->GetProperty("color"), "another colour in the effect");
}

// Each line is a colour of a gradient, at the place that its first character says.
void CheckGradient(const std::string& lines)
{
    PropertyTree gradient;
    gradient.convertToList();
    std::map<std::uint8_t, std::string> expected;
    std::istringstream input(lines);
    bool isRefused = false;
    for (std::string line; std::getline(input, line) && !line.empty();)
    {
        const auto place = static_cast<std::uint8_t>(line.front());
        PropertyTree& element = gradient.getList().emplace_back();
        element["key"] = std::int64_t{place} + 256 * static_cast<std::int64_t>(line.size()); // cut to 8 bits
        element["value"] = line.substr(1);
        const Reading reading = ExpectedOf(line.substr(1));
        isRefused = isRefused || reading.outcome != Outcome::Read;
        if (!isRefused)
        {
            expected[place] = EightDigits(reading.number);
        }
    }
    PhotoCore::GradientSettings effect;
    const auto access = effect.GetPropertyAccess();
    const Outcome outcome = OutcomeOf([&] { access->SetProperty("gradient", gradient); });
    Fuzz::Require((outcome != Outcome::Read) == isRefused, "a gradient has another outcome", lines);

    PropertyTree stored;
    stored.convertToList();
    for (const auto& [place, color] : expected)
    {
        PropertyTree& element = stored.getList().emplace_back();
        element["key"] = place;
        element["value"] = color;
    }
    // The gradient is a member, which keeps what was read before a failure.
    Fuzz::RequireSame(stored, access->GetProperty("gradient"), "another gradient");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    CheckText(text);
    CheckGradient(text);
    return 0;
}
