#include "Findings.h"

#include <gtest/gtest.h>

namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

std::string MendedText(std::string_view json)
{
    const PropertyTree tree = ReadJson(json);
    return WriteJson(Mended(tree, Check(tree)));
}

TEST(Mended, ReplacesAndTakesOut)
{
    EXPECT_EQ(MendedText(R"([{"name": "EFFECT_VIBRANCE", "strength": 3.5, "key": 1}, {"name": "EFFECT_NOTHING", "x": 1}])"),
              R"([{"name":"EFFECT_VIBRANCE","strength":3},{"name":"EFFECT_NOTHING","x":1}])");
}

TEST(Mended, TakesSeveralElementsOutOfOneList)
{
    EXPECT_EQ(MendedText(R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["x", "Red", "y", "Alpha", "Red"]})"),
              R"({"mode":["Red","Alpha"],"name":"EFFECT_NEGATE_VIDEO"})");
    EXPECT_EQ(
        MendedText(R"({"name": "EFFECT_GRADIENT", "gradient": [{"key": "x", "value": "y"}, {"key": 1, "value": "FF"}, 3]})"),
        R"({"gradient":[{"key":1,"value":"000000ff"}],"name":"EFFECT_GRADIENT"})");
}

TEST(Mended, PassesOverWhatIsNotThere)
{
    const PropertyTree tree = ReadJson(R"({"name": "EFFECT_VIBRANCE", "strength": 3.5})");
    const std::vector<Finding> findings = Check(tree);
    EXPECT_EQ(Mended(PropertyTree(), findings), PropertyTree());
    EXPECT_EQ(Mended(PropertyTree(3), findings), PropertyTree(3));
    const PropertyTree other = ReadJson(R"({"name": "EFFECT_VIBRANCE"})");
    EXPECT_EQ(Mended(other, findings), other);
    EXPECT_EQ(Mended(tree, {}), tree);
}

TEST(Paths, AreShownWithEscapes)
{
    EXPECT_EQ((Path{{std::size_t{2}, "a/b", "c~d", ""}}.ToText()), "2/a~1b/c~0d/");
    EXPECT_EQ(Path{}.ToText(), "");
}

TEST(Codes, HaveTextsAndSeverities)
{
    EXPECT_EQ(TextOf(FindingCode::NoName), "no-name");
    EXPECT_EQ(TextOf(FindingCode::Refused), "refused");
    EXPECT_EQ(TextOf(FindingCode::UnknownName), "unknown-name");
    EXPECT_EQ(TextOf(FindingCode::ChangesOnWrite), "changes-on-write");
    EXPECT_EQ(TextOf(FindingCode::DefaultWritten), "default-written");
    EXPECT_EQ(TextOf(FindingCode::NoSchema), "no-schema");
    EXPECT_EQ(SeverityOf(FindingCode::Refused), Severity::Error);
    EXPECT_EQ(SeverityOf(FindingCode::UnknownName), Severity::Warning);
    EXPECT_EQ(SeverityOf(FindingCode::ChangesOnWrite), Severity::Warning);
    EXPECT_EQ(SeverityOf(FindingCode::DefaultWritten), Severity::Note);
}

} // namespace
