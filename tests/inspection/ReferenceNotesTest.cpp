#include "Inspection/Describe.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include "Proc/EffectSettings/EffectSettingsExport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// The notes of the reference and the description name the same members without a key.
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

const std::filesystem::path NOTES = OMBREL_REFERENCE_NOTES;

PropertyTree NotesIn(const std::filesystem::path& file)
{
    std::ifstream stream(file);
    return ReadJson(std::string(std::istreambuf_iterator<char>(stream), {}));
}

// Without what Markdown shows otherwise: "[Face](faces.md#face)" and "`Stretch`".
std::string Plain(const std::string& text)
{
    std::string plain;
    bool isTarget = false;
    for (std::size_t index = 0; index != text.size(); ++index)
    {
        const bool begins = text[index] == '(' && index != 0 && text[index - 1] == ']';
        isTarget = begins || (isTarget && text[index - 1] != ')');
        if (!isTarget && std::string_view("`[]").find(text[index]) == std::string_view::npos)
        {
            plain += text[index];
        }
    }
    return plain;
}

void Add(const PropertyTree& rows, std::vector<KeylessMember>& members)
{
    for (const PropertyTree& row : rows.getList())
    {
        const auto text = [&row](const char* key) { return Plain(row[key].getScalar().toString()); };
        KeylessMember member{text("member"), text("type"), text("default"), text("compared") == "yes"};
        const auto same = std::ranges::find(members, member.member, &KeylessMember::member);
        if (same == members.end())
        {
            members.push_back(member);
        }
        else
        {
            *same = member;
        }
    }
}

std::string LinesOf(const std::vector<KeylessMember>& members)
{
    std::string lines;
    for (const KeylessMember& member : members)
    {
        lines +=
            member.member + ": " + member.type + " = " + member.defaultValue + (member.isCompared ? "\n" : ", not compared\n");
    }
    return lines;
}

TEST(ReferenceNotes, NameTheMembersThatAreDescribed)
{
    const PropertyTree declared = NotesIn(NOTES / "members.json");
    std::size_t classes = 0;
    for (const auto& file : std::filesystem::directory_iterator(NOTES))
    {
        if (file.path().stem() == "members")
        {
            continue;
        }
        const PropertyTree page = NotesIn(file);
        for (const auto& [className, note] : page.getMap())
        {
            std::vector<KeylessMember> members;
            for (const PropertyTree& name : note.contains("members") ? note["members"].getList() : PropertyTree::List())
            {
                Add(declared[name.getScalar().toString()], members);
            }
            const auto known = PhotoCore::EffectClasses();
            const auto effectClass = std::ranges::find(known, std::string_view(className), &PhotoCore::EffectClass::className);
            ASSERT_NE(effectClass, known.end()) << className;
            EXPECT_EQ(LinesOf(members), LinesOf(Describe(effectClass->classId)->members)) << className;
            ++classes;
        }
    }
    EXPECT_EQ(classes, PhotoCore::EffectClasses().size());

    std::vector<KeylessMember> face;
    Add(declared["Face"], face);
    EXPECT_EQ(LinesOf(face), LinesOf(Describe("SettingsEffectFacePackage")->FindRecord("Face")->members));
}

} // namespace
