#include "Conf/FrameInfo.h"
#include "Proc/ImplNames.h"

#include <gtest/gtest.h>

namespace
{

TEST(Conf, ImplNamesAreStable)
{
    EXPECT_EQ(Ombrel::Proc::ImplNames::DEFAULT, "default");
    EXPECT_EQ(Ombrel::Proc::ImplNames::FFMPEG, "ffmpeg");
}

TEST(Conf, FrameInfoIsFourZeros)
{
    const Ombrel::Conf::FrameInfo frame;
    EXPECT_EQ(frame.width, 0u);
    EXPECT_EQ(frame.height, 0u);
    EXPECT_EQ(frame.ax, 0u);
    EXPECT_EQ(frame.ay, 0u);
    EXPECT_EQ(frame, (Ombrel::Conf::FrameInfo{0, 0, 0, 0}));
    EXPECT_FALSE(frame == (Ombrel::Conf::FrameInfo{0, 0, 0, 1}));
    static_assert(sizeof(frame) == 16);
}

} // namespace
