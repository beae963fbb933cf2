#include "Proc/EffectSettings/BlendSettings.h"
#include "Proc/EffectSettings/ColorBalanceSettings.h"
#include "Proc/EffectSettings/CropSettings.h"
#include "Proc/EffectSettings/FishEyeSettings.h"
#include "Proc/EffectSettings/OilPaintSettings.h"
#include "Proc/EffectSettings/RetroArtefactsSettings.h"
#include "Proc/EffectSettings/SharedValues.h"
#include "Proc/EffectSettings/TransposeSettings.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

// The sums, products and remainders that the effects make of stored numbers, of every pair of numbers at the edges of their
// types. What they come to is computed here in wider types, where nothing can overflow.
namespace
{

using namespace Ombrel::PhotoCore;
using Support::Map;

constexpr std::int32_t LEAST = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t MOST = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t INTEGERS[] = {LEAST, LEAST + 1, -1073741825, -1073741824, -16777217, -361, -181, -180,
                                     -1,    0,         1,           179,         180,       181,  360,  900,
                                     256,   16777217,  1 << 30,     MOST - 180,  MOST - 1,  MOST};

constexpr float INF = std::numeric_limits<float>::infinity();
const float FLOATS[] = {0.0f,
                        -0.0f,
                        0x1p-149f,
                        -0x1p-149f,
                        0x1p-126f,
                        0.5f / 255.0f,
                        0.25f,
                        1.0f,
                        -1.0f,
                        1.5f,
                        0x1p31f,
                        -0x1p31f,
                        0x1p32f,
                        0x1.fffffep+127f,
                        -0x1.fffffep+127f,
                        INF,
                        -INF,
                        std::numeric_limits<float>::quiet_NaN()};

// The low 32 bits, as a signed number.
std::int32_t Wrapped(std::int64_t value)
{
    const std::int64_t low = ((value % 4294967296) + 4294967296) % 4294967296;
    return static_cast<std::int32_t>(low <= MOST ? low : low - 4294967296);
}

TEST(Arithmetic, OfTheCropWrapsIn32Bits)
{
    for (const std::int32_t a : INTEGERS)
    {
        for (const std::int32_t b : INTEGERS)
        {
            CropSettings crop;
            crop.Deserialize(Map({{"x", a}, {"y", b}, {"width", a}, {"height", b}}));
            CropSettings other;
            other.Deserialize(Map({{"x", b}, {"y", b}, {"width", b}, {"height", a}}));
            static_cast<IEffectSettings&>(crop).Add(other);
            EXPECT_EQ(crop.GetTypedSettings().GetX(), Wrapped(std::int64_t{a} + b)) << a << ", " << b;
            EXPECT_EQ(crop.GetTypedSettings().GetY(), Wrapped(std::int64_t{b} + b)) << a << ", " << b;
            EXPECT_EQ(crop.GetTypedSettings().GetWidth(), b);
            EXPECT_EQ(crop.GetTypedSettings().GetHeight(), a);
        }
    }
}

TEST(Arithmetic, OfUnitedRectanglesWrapsIn32Bits)
{
    for (const std::int32_t a : INTEGERS)
    {
        for (const std::int32_t b : INTEGERS)
        {
            for (const std::int32_t c : {LEAST, -1, 0, 1, MOST})
            {
                for (const std::int32_t d : {LEAST, -1, 0, 1, MOST})
                {
                    ROI roi{a, d, b, c};
                    roi.Unite({c, b, d, a});
                    const std::int64_t left = std::min(a, c);
                    const std::int64_t right = std::max(Wrapped(std::int64_t{a} + b), Wrapped(std::int64_t{c} + d));
                    const std::int64_t top = std::min(d, b);
                    const std::int64_t bottom = std::max(Wrapped(std::int64_t{d} + c), Wrapped(std::int64_t{b} + a));
                    EXPECT_EQ(roi.left, left);
                    EXPECT_EQ(roi.width, Wrapped(right - left)) << a << ", " << b << ", " << c << ", " << d;
                    EXPECT_EQ(roi.top, top);
                    EXPECT_EQ(roi.height, Wrapped(bottom - top)) << a << ", " << b << ", " << c << ", " << d;
                }
            }
        }
    }
}

TEST(Arithmetic, OfTheHueStaysWithinATurn)
{
    for (const std::int32_t hue : INTEGERS)
    {
        Ombrel::Proc::SettingsEffectColorBalance record;
        record.SetHue(hue);
        const std::int64_t found = record.GetHue();
        EXPECT_EQ((std::int64_t{hue} - found) % 360, 0) << hue << " became " << found;
        EXPECT_TRUE(hue == 180 ? found == 180 : found >= -180 && found <= 179) << hue << " became " << found;
    }
}

// The product of two floats is exact in 64 bits; 32 bits round it.
double Product(float a, float b)
{
    return static_cast<float>(static_cast<double>(a) * static_cast<double>(b));
}

template <class Integer> std::int64_t Held(double product)
{
    constexpr auto least = static_cast<double>(std::numeric_limits<Integer>::min());
    constexpr auto most = static_cast<double>(std::numeric_limits<Integer>::max());
    return std::isnan(product) ? 0 : static_cast<std::int64_t>(std::clamp(product, least, most));
}

TEST(Arithmetic, OfScaledNumbersIsHeldWithinTheirTypes)
{
    for (const std::int32_t number : INTEGERS)
    {
        for (const float intensity : FLOATS)
        {
            Ombrel::Proc::SettingsEffectOilPaint oil;
            oil.SetRadius(number);
            oil.SetIntensity(intensity);
            EXPECT_EQ(oil.GetRadius(), Held<std::int32_t>(Product(static_cast<float>(number), intensity)))
                << number << " * " << intensity;

            const auto amount = static_cast<std::uint32_t>(number);
            Ombrel::Proc::SettingsEffectRetroArtefacts retro;
            retro.SetGrain(amount);
            retro.SetScratches(amount);
            retro.SetRollerTrack(amount);
            retro.SetIntensity(intensity);
            const std::int64_t expected = Held<std::uint32_t>(Product(static_cast<float>(amount), intensity));
            EXPECT_EQ(retro.GetGrain(), expected) << amount << " * " << intensity;
            EXPECT_EQ(retro.GetScratches(), expected) << amount << " * " << intensity;
            EXPECT_EQ(retro.GetRollerTrack(), expected) << amount << " * " << intensity;
        }
    }
}

TEST(Arithmetic, OfAlphaIsHeldWithinItsScale)
{
    for (const float intensity : FLOATS)
    {
        Ombrel::Proc::SettingsEffectImageBlender record;
        record.SetIntensity(intensity);
        const double scaled = Product(intensity, 255.0f);
        const double held = std::isnan(scaled) ? 0.0 : std::clamp(scaled, 0.0, 255.0);
        EXPECT_EQ(record.GetAlpha(), std::lround(held)) << intensity;
    }
    for (const std::int32_t alpha : INTEGERS)
    {
        BlendSettings effect;
        effect.GetPropertyAccess()->SetProperty("alpha", alpha);
        EXPECT_EQ(effect.GetTypedSettings().GetAlpha(), std::clamp(alpha, 0, 255)) << alpha;
    }
}

// Where no factor reaches the deviation, it is itself the factor.
TEST(Arithmetic, OfTheFishEyeIsFiniteForAFiniteDeviation)
{
    for (const float intensity : FLOATS)
    {
        for (const double deviation : {0.0, 1.0, -1e300, 1e300, 0x1p-1074, static_cast<double>(INF), std::nan("")})
        {
            Ombrel::Proc::SettingsEffectFishEye record;
            record.SetIntensity(intensity);
            record.SetDeviation(deviation);
            const double scale = intensity;
            const double quotient = deviation / scale;
            const bool isReachable =
                std::isfinite(scale) && scale != 0.0 && (std::isfinite(quotient) || !std::isfinite(deviation));
            const double expected = scale * (isReachable ? quotient : deviation);
            const double found = record.GetDeviation();
            EXPECT_TRUE(std::isfinite(found) || !std::isfinite(deviation) || !std::isfinite(scale))
                << deviation << " at " << intensity;
            EXPECT_TRUE(std::isnan(expected) ? std::isnan(found) : found == expected)
                << deviation << " at " << intensity << ": expected " << expected << ", found " << found;
        }
    }
}

// A quarter turn after the other, as often as a positive angle says.
TEST(Arithmetic, OfQuarterTurnsStaysBelowFour)
{
    for (const std::int32_t a : INTEGERS)
    {
        for (const std::int32_t b : INTEGERS)
        {
            TransposeSettings effect;
            effect.Deserialize(Map({{"angle", a}}));
            TransposeSettings other;
            other.Deserialize(Map({{"angle", b}}));
            effect.Add(other);
            const std::int32_t turns = std::max(b % 4, 0);
            const std::int32_t expected = turns == 0 ? a % 4 : ((a % 4) + 4 + turns) % 4;
            EXPECT_EQ(static_cast<std::int32_t>(effect.GetTypedSettings().GetAngle()), expected) << a << ", " << b;
        }
    }
}

} // namespace
