#include "Module.h"

#include <gtest/gtest.h>

// A host that does not know the library: it comes with the plugin that is linked to it, and must go with it. What it left in
// the process would be found by the next round, or crash the program at its end.
namespace Borders
{
namespace
{

TEST(Unload, TheLibraryGoesWithItsLastPlugin)
{
    for (int round = 1; round <= 3; ++round)
    {
        ASSERT_FALSE(Module::IsLoaded(BORDERS_LIBRARY)) << round;
        {
            const Module module(BORDERS_PLUGIN);
            EXPECT_STREQ(module.Get<const char*()>("BordersExercise")(), "") << round;
            EXPECT_TRUE(Module::IsLoaded(BORDERS_LIBRARY)) << round;
            EXPECT_TRUE(Module::IsLoaded(BORDERS_PLUGIN)) << round;
        }
        EXPECT_FALSE(Module::IsLoaded(BORDERS_PLUGIN)) << round;
    }
    EXPECT_FALSE(Module::IsLoaded(BORDERS_LIBRARY));
}

TEST(Unload, TheLibraryStaysWithAnotherPlugin)
{
    const Module other(BORDERS_OTHER_PLUGIN);
    for (int round = 1; round <= 3; ++round)
    {
        {
            const Module module(BORDERS_PLUGIN);
            EXPECT_TRUE(Module::IsLoaded(BORDERS_PLUGIN)) << round;
        }
        EXPECT_FALSE(Module::IsLoaded(BORDERS_PLUGIN)) << round;
        EXPECT_TRUE(Module::IsLoaded(BORDERS_LIBRARY)) << round;
    }
    EXPECT_STREQ(other.Get<const char*()>("BordersExercise")(), "");
}

} // namespace
} // namespace Borders
