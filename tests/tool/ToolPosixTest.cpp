#include "InPlaceFixture.h"

#include <filesystem>

#include <sys/stat.h>

namespace Ombrel
{
namespace
{

namespace fs = std::filesystem;

using ToolOutput = ToolTest;
using ToolWords = ToolTest;

// Windows has rights in lists instead of modes, and only some users may make symbolic links.

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

TEST_F(ToolInPlace, AFolderThatTakesNoFileLeavesTheFileAlone)
{
    fs::permissions(At(""), fs::perms{0555});
    EXPECT_EQ(SetRadius({.obeysFileModes = true}),
              (ToolResult{3, "", "f.json: cannot be replaced: no file can be created in its folder: Permission denied\n"}));
    ExpectUntouched();
}

// Windows has no limit to the size of a file and no device that is always full.

TEST_F(ToolInPlace, AFailedWriteLeavesTheFileAlone)
{
    EXPECT_EQ(SetRadius({.maxFileSize = 16}), (ToolResult{3, "", "f.json: cannot be replaced: File too large\n"}));
    ExpectUntouched();
}

TEST_F(ToolOutput, OutputMustBeWritable)
{
    EXPECT_EQ(Run({"list"}, {.outputFile = "/dev/full"}),
              (ToolResult{3, "", "<stdout>: cannot be written: No space left on device\n"}));
    EXPECT_EQ(Run({"--version"}, {.outputFile = "/dev/full"}).code, 3);
}

// On Windows a pipe is not in a folder.

TEST_F(ToolInPlace, WhatIsNoRegularFileStays)
{
    ASSERT_EQ(::mkfifo(At("pipe.json").c_str(), 0600), 0);
    EXPECT_EQ(SetRadius({}, "pipe.json"), (ToolResult{3, "", "pipe.json: cannot be replaced: it is not a regular file\n"}));
    EXPECT_TRUE(fs::is_fifo(At("pipe.json")));
}

// On Windows names of files have no control characters, and words are UTF-16, so that no byte is wrong.

TEST_F(ToolWords, EscapesNamesOfFilesAndKeys)
{
    Write("a\x1b[31m\n\xff.json", "{\"name\":\"EFFECT_ACID\",\"\\u001b\\u009b\\n\":1}");
    EXPECT_EQ(Run({"check", "--quiet", "a\x1b[31m\n\xff.json"}),
              (ToolResult{1,
                          "a\\u001b[31m\\n\\xff.json:1:40: warning: \\u001b\\u009b\\n: the key is not known, so its value is "
                          "lost [unknown-key]\n",
                          ""}));
}

TEST_F(ToolWords, IsEscapedInMessagesAsTheJsonLibraryDoes)
{
    EXPECT_EQ(Run({"new", "~/\n\x1b\xC2\x9B\xFF\xC3\xA4"}),
              (ToolResult{2, "",
                          "~0~1\\n\\u001b\\u009b\\xff\xC3\xA4: no such class id, expected one that \"ombrel-effects list\" "
                          "shows\n"}));
}

TEST_F(ToolWords, AreUtf8WhereTheyAreStored)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_EMPTY"})", {"set", "value", "\xFF"}),
              (ToolResult{4, "", "f.json: value: the value cannot be written as JSON: the string is not valid UTF-8\n"}));
}

} // namespace
} // namespace Ombrel
