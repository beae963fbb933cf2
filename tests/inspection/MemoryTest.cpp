#include "Inspection/Describe.h"
#include "Inspection/JsonSchema.h"
#include "support/FailingMemory.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <optional>

// Without memory a description and a schema fail as a whole, wherever it ends.
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

// Fails at each `step`th allocation in turn. How often that is.
template <class Work> std::size_t FailuresOf(std::size_t step, Work work)
{
    work(); // what is made once is there
    for (std::size_t failures = 0;; ++failures)
    {
        const Support::FailingMemory memory(failures * step, Support::FailingMemory::Mode::Once);
        try
        {
            work();
        }
        catch (const std::bad_alloc&)
        {
            continue;
        }
        EXPECT_FALSE(memory.HasFailed());
        return failures;
    }
}

TEST(Memory, ThatEndsEndsADescription)
{
    EXPECT_GT(FailuresOf(1, [] { static_cast<void>(Describe("EFFECT_FISH_EYE")); }), 100U);
    EXPECT_GT(FailuresOf(101, [] { static_cast<void>(Describe("SettingsEffectFacePackage")); }), 10U);
}

TEST(Memory, ThatEndsEndsASchema)
{
    EXPECT_GT(FailuresOf(1, [] { static_cast<void>(JsonSchema("EFFECT_GRADIENT")); }), 100U);
    EXPECT_GT(FailuresOf(101, [] { static_cast<void>(JsonSchema()); }), 10U);
}

} // namespace
