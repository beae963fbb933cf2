#include "InPlaceFixture.h"

#include <filesystem>
#include <string>

#include <windows.h>

namespace Ombrel
{
namespace
{

namespace fs = std::filesystem;

using ToolOnWindows = ToolInPlace;

TEST_F(ToolOnWindows, RefusesAReadOnlyFile)
{
    const std::wstring file = At("f.json").wstring();
    ASSERT_NE(::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY), 0);
    EXPECT_EQ(SetRadius(), (ToolResult{3, "", "f.json: cannot be replaced: it is read-only\n"}));
    EXPECT_NE(::GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
    ::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    ExpectUntouched();
}

TEST_F(ToolOnWindows, RefusesAFolder)
{
    EXPECT_EQ(SetRadius({}, "."), (ToolResult{3, "", ".: cannot be replaced: it is not a regular file\n"}));
    ExpectUntouched();
}

TEST_F(ToolOnWindows, KeepsAttributes)
{
    constexpr DWORD attributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    const std::wstring file = At("f.json").wstring();
    ASSERT_NE(::SetFileAttributesW(file.c_str(), attributes), 0);
    EXPECT_EQ(SetRadius(), (ToolResult{0, "", ""}));
    EXPECT_EQ(Content("f.json"), NEW);
    EXPECT_EQ(::GetFileAttributesW(file.c_str()) & attributes, attributes);
}

// No other file takes the place of one that a program keeps open.
TEST_F(ToolOnWindows, LeavesAFileAloneThatIsKeptOpen)
{
    const HANDLE reader =
        ::CreateFileW(At("f.json").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(reader, INVALID_HANDLE_VALUE);
    EXPECT_EQ(SetRadius(), (ToolResult{3, "", "f.json: cannot be replaced: Permission denied\n"}));
    ::CloseHandle(reader);
    ExpectUntouched();
}

TEST_F(ToolOnWindows, TakesBackslashesAndShowsThemAsSlashes)
{
    fs::create_directories(At("looks/inner"));
    Write("looks/inner/a.json", "{");
    EXPECT_EQ(Run({"get", "looks\\inner\\a.json", "0"}).err,
              "looks\\inner\\a.json:1:2: unexpected end of input; expected string literal\n");
    EXPECT_EQ(Run({"check", "--quiet", "looks\\inner"}).err,
              "looks/inner/a.json:1:2: unexpected end of input; expected string literal\n");
}

TEST_F(ToolOnWindows, TakesPathsThatAreLongerThanMaxPath)
{
    const std::wstring root = L"\\\\?\\" + At("").wstring();
    const std::wstring outer = root + std::wstring(150, L'a');
    const std::wstring inner = outer + L"\\" + std::wstring(150, L'b');
    ASSERT_NE(::CreateDirectoryW(outer.c_str(), nullptr), 0);
    ASSERT_NE(::CreateDirectoryW(inner.c_str(), nullptr), 0);
    ASSERT_NE(::MoveFileW(At("f.json").c_str(), (inner + L"\\f.json").c_str()), 0);
    const std::string file = std::string(150, 'a') + "/" + std::string(150, 'b') + "/f.json";
    EXPECT_EQ(SetRadius({}, file), (ToolResult{0, "", ""}));
    EXPECT_EQ(Run({"get", file, "radius"}), (ToolResult{0, "7\n", ""}));

    // By their long names, which the standard library does not remove.
    EXPECT_NE(::DeleteFileW((inner + L"\\f.json").c_str()), 0);
    EXPECT_NE(::RemoveDirectoryW(inner.c_str()), 0);
    EXPECT_NE(::RemoveDirectoryW(outer.c_str()), 0);
}

} // namespace
} // namespace Ombrel
