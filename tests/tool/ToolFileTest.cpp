#include "ToolRunner.h"

#include <filesystem>
#include <thread>

#include <sys/stat.h>

namespace Ombrel
{
namespace
{

namespace fs = std::filesystem;

constexpr const char* OLD = R"({"name":"EFFECT_ACID","radius":5})";
constexpr const char* NEW = "{\n  \"name\": \"EFFECT_ACID\",\n  \"radius\": 7\n}\n";

class ToolInPlace : public ToolTest
{
protected:
    ToolInPlace() { Write("f.json", OLD); }

    ToolResult SetRadius(const ToolSurroundings& surroundings = {}, const std::string& file = "f.json") const
    {
        return Run({"set", file, "radius", "7", "--in-place"}, surroundings);
    }

    void ExpectUntouched() const
    {
        EXPECT_EQ(Content("f.json"), OLD);
        EXPECT_EQ(Files(), std::vector<std::string>{"f.json"});
    }
};

TEST_F(ToolInPlace, ReplacesAndPrintsNothing)
{
    EXPECT_EQ(SetRadius(), (ToolResult{0, "", ""}));
    EXPECT_EQ(Content("f.json"), NEW);
    EXPECT_EQ(Files(), std::vector<std::string>{"f.json"});
}

TEST_F(ToolInPlace, PutsAnotherFileInTheOldOnesPlace)
{
    fs::create_hard_link(At("f.json"), At("before.json"));
    EXPECT_EQ(SetRadius().code, 0);
    EXPECT_EQ(Content("f.json"), NEW);
    EXPECT_EQ(Content("before.json"), OLD) << "the old content was overwritten, so that a crash could have torn it";
}

TEST_F(ToolInPlace, KeepsTheMode)
{
    for (const auto mode : {0640, 0604, 0777})
    {
        fs::permissions(At("f.json"), fs::perms{static_cast<unsigned>(mode)});
        EXPECT_EQ(SetRadius().code, 0);
        EXPECT_EQ(static_cast<int>(fs::status(At("f.json")).permissions()), mode);
    }
}

TEST_F(ToolInPlace, FollowsASymbolicLinkIntoAnotherFolder)
{
    fs::create_directory(At("links"));
    fs::create_symlink("../f.json", At("links/link.json"));
    EXPECT_EQ(SetRadius({}, "links/link.json"), (ToolResult{0, "", ""}));
    EXPECT_TRUE(fs::is_symlink(At("links/link.json")));
    EXPECT_EQ(Content("f.json"), NEW);
    EXPECT_EQ(Files(), (std::vector<std::string>{"f.json", "links"}));
}

TEST_F(ToolInPlace, PrintingLeavesTheFileAlone)
{
    EXPECT_EQ(Run({"set", "f.json", "radius", "7"}), (ToolResult{0, NEW, ""}));
    ExpectUntouched();
}

TEST_F(ToolInPlace, AFailedWriteLeavesTheFileAlone)
{
    EXPECT_EQ(SetRadius({.maxFileSize = 16}), (ToolResult{3, "", "f.json: cannot be replaced: File too large\n"}));
    ExpectUntouched();
}

TEST_F(ToolInPlace, AFolderThatTakesNoFileLeavesTheFileAlone)
{
    fs::permissions(At(""), fs::perms{0555});
    EXPECT_EQ(SetRadius({.obeysFileModes = true}),
              (ToolResult{3, "", "f.json: cannot be replaced: no file can be created in its folder: Permission denied\n"}));
    ExpectUntouched();
}

TEST_F(ToolInPlace, TwoAtOnceLoseNoChange)
{
    for (int round = 0; round < 100; ++round)
    {
        Write("f.json", OLD);
        ToolResult other{-1, {}, {}};
        std::thread second([&] { other = Run({"set", "f.json", "sigma", "2", "--in-place"}); });
        const ToolResult result = SetRadius();
        second.join();
        ASSERT_EQ(result, (ToolResult{0, "", ""}));
        ASSERT_EQ(other, (ToolResult{0, "", ""}));
        ASSERT_EQ(Content("f.json"), "{\n  \"name\": \"EFFECT_ACID\",\n  \"radius\": 7,\n  \"sigma\": 2.0\n}\n");
    }
    EXPECT_EQ(Files(), std::vector<std::string>{"f.json"});
}

TEST_F(ToolInPlace, WhatIsNoRegularFileStays)
{
    ASSERT_EQ(::mkfifo(At("pipe.json").c_str(), 0600), 0);
    EXPECT_EQ(SetRadius({}, "pipe.json"), (ToolResult{3, "", "pipe.json: cannot be replaced: it is not a regular file\n"}));
    EXPECT_TRUE(fs::is_fifo(At("pipe.json")));
}

TEST_F(ToolInPlace, AnErrorLeavesTheFileAlone)
{
    EXPECT_EQ(Run({"set", "f.json", "radius", "x", "--in-place"}).code, 2);
    EXPECT_EQ(Run({"set", "f.json", "radios", "1", "--in-place"}).code, 2);
    EXPECT_EQ(Run({"set", "f.json", "radius", "1.5", "--in-place"}),
              (ToolResult{1, "",
                          "f.json: radius: given 1.5, read as 1\n"
                          "f.json: nothing written; --force writes the result all the same\n"}));
    ExpectUntouched();
}

TEST_F(ToolInPlace, ForceTakesWhatIsStored)
{
    EXPECT_EQ(Run({"set", "f.json", "radius", "7.5", "--in-place", "--force"}),
              (ToolResult{1, "", "f.json: radius: given 7.5, read as 7\n"}));
    EXPECT_EQ(Content("f.json"), NEW);
}

TEST_F(ToolInPlace, NormalisesWhatLosesNothing)
{
    Write("f.json", R"({"name":"EFFECT_ACID","radius":7,"sigma":0.5})");
    EXPECT_EQ(Run({"normalise", "f.json", "--in-place"}), (ToolResult{0, "", ""}));
    EXPECT_EQ(Content("f.json"), NEW);
}

TEST_F(ToolInPlace, DropsKeysOnlyByForce)
{
    const char* content = R"({"name":"EFFECT_ACID","radius":7,"other":1})";
    Write("f.json", content);
    EXPECT_EQ(Run({"normalise", "f.json", "--in-place"}),
              (ToolResult{1, "",
                          "f.json:1:42: warning: other: the key is not known, so its value is lost [unknown-key]\n"
                          "f.json: nothing written; --force writes the result all the same\n"}));
    EXPECT_EQ(Content("f.json"), content);
    EXPECT_EQ(Run({"normalise", "f.json", "--in-place", "--force"}),
              (ToolResult{1, "", "f.json:1:42: warning: other: the key is not known, so its value is lost [unknown-key]\n"}));
    EXPECT_EQ(Content("f.json"), NEW);
}

} // namespace
} // namespace Ombrel
