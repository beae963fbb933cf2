#include "Proc/EffectSettings/SharedValues.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using namespace Ombrel::PhotoCore;

constexpr std::int32_t LOWEST = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t HIGHEST = std::numeric_limits<std::int32_t>::max();

TEST(SharedValues, NoValueIsTheHighestIndex)
{
    EXPECT_EQ(Const::NO_VALUE, 4294967295u);
    static_assert(std::is_same_v<decltype(Const::NO_VALUE), const std::uint32_t>);
}

TEST(SharedValues, CorePixelFormatsAreThree)
{
    using Ombrel::PixFmt;
    EXPECT_EQ(Const::CorePixelFormats,
              (std::vector<PixFmt>{static_cast<PixFmt>(2), static_cast<PixFmt>(28), static_cast<PixFmt>(123)}));
    EXPECT_EQ(Const::CorePixelFormats, (std::vector<PixFmt>{PixFmt::RGB24, PixFmt::BGRA, PixFmt::BGR0}));
}

TEST(MaxIndex, TakesTheLargerThatIsSet)
{
    EXPECT_EQ(MaxIndex(Const::NO_VALUE, Const::NO_VALUE), Const::NO_VALUE);
    EXPECT_EQ(MaxIndex(Const::NO_VALUE, 3), 3u);
    EXPECT_EQ(MaxIndex(3, Const::NO_VALUE), 3u);
    EXPECT_EQ(MaxIndex(5, 3), 5u);
    EXPECT_EQ(MaxIndex(3, 5), 5u);
    EXPECT_EQ(MaxIndex(0, 0), 0u);
    EXPECT_EQ(MaxIndex(4294967294, 1), 4294967294u);
    EXPECT_EQ(MaxIndex(1, 4294967294), 4294967294u);
}

TEST(ROI, UnitesToTheBoundingBox)
{
    ROI roi{10, 10, 5, 5};
    EXPECT_EQ(&roi.Unite({0, 0, 0, 0}), &roi);
    EXPECT_EQ(roi, (ROI{0, 0, 15, 15}));

    EXPECT_EQ((ROI{-5, 0, 2, 2}.Unite({0, 0, 1, 1})), (ROI{-5, 0, 6, 2}));
    EXPECT_EQ((ROI{1, 2, 3, 4}.Unite({10, 20, 30, 40})), (ROI{1, 2, 39, 58}));
    EXPECT_EQ((ROI{0, 0, 100, 100}.Unite({10, 10, 5, 5})), (ROI{0, 0, 100, 100}));
    EXPECT_EQ(ROI(), (ROI{0, 0, 0, 0}));
}

TEST(ROI, SumsWrap)
{
    // HIGHEST + 1 is LOWEST, so the right edge is that of the other.
    EXPECT_EQ((ROI{HIGHEST, 0, 1, 0}.Unite({0, 0, 5, 0})), (ROI{0, 0, 5, 0}));
    EXPECT_EQ((ROI{LOWEST, LOWEST, 0, 0}.Unite({HIGHEST, HIGHEST, 0, 0})), (ROI{LOWEST, LOWEST, -1, -1}));
}

} // namespace
