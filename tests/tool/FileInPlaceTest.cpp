#include "FileInPlaceFixture.h"

#include "TextFile.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>

namespace Ombrel::EffectsTool
{
namespace
{

TEST_F(FileInPlaceTest, IsReplaced)
{
    EXPECT_EQ(Replace(), "");
    EXPECT_EQ(Content(), NEW);
    EXPECT_EQ(Files(), 1u);
}

TEST_F(FileInPlaceTest, HasTheWholeOldOrTheWholeNewContentForReaders)
{
    const std::string one(300'000, 'a');
    const std::string other(200'000, 'b');
    Write(one);
    std::atomic<bool> isDone = false;
    std::thread reader(
        [&]
        {
            while (!isDone)
            {
                const std::string content = ReadTextFile(File(), 1'000'000);
                EXPECT_TRUE(content == one || content == other) << content.size() << " bytes";
            }
        });
    for (int round = 0; round != 100; ++round)
    {
        FileInPlace file(File());
        file.Replace(round % 2 == 0 ? other : one);
    }
    isDone = true;
    reader.join();
    EXPECT_EQ(Content(), one);
    EXPECT_EQ(Files(), 1u);
}

// The clock of files is coarse, so that a change comes a moment later.
TEST_F(FileInPlaceTest, IsLeftAloneIfItHasChanged)
{
    for (const char* content : {"changed, longer", OLD}) // the same again, by another program
    {
        Write(OLD);
        EXPECT_THAT(Replace(
                        [&]
                        {
                            std::this_thread::sleep_for(std::chrono::milliseconds(20));
                            Write(content);
                        }),
                    testing::EndsWith(": cannot be replaced: it has changed since it was read"));
        EXPECT_EQ(Content(), content);
        EXPECT_EQ(Files(), 1u);
    }
}

TEST_F(FileInPlaceTest, WaitsForAnotherRunAndReadsWhatItWrote)
{
    auto first = std::make_unique<FileInPlace>(File());
    std::string read;
    std::thread second(
        [&]
        {
            const FileInPlace file(File());
            read = file.Read(1000);
        });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    first->Replace(NEW);
    first.reset();
    second.join();
    EXPECT_EQ(read, NEW);
}

} // namespace
} // namespace Ombrel::EffectsTool
