#include "Findings.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

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

// A finding that takes a value out, or gives it another one.
Finding Change(Path path, Mend mend, PropertyTree becomes = {})
{
    Finding finding;
    finding.path = std::move(path);
    finding.mend = mend;
    finding.becomes = std::move(becomes);
    return finding;
}

Path At(std::vector<PathStep> steps)
{
    return Path(std::move(steps));
}

std::shared_ptr<const Path> Shared(std::vector<PathStep> steps)
{
    return std::make_shared<const Path>(std::move(steps));
}

constexpr std::size_t FIRST = 0;

// The same elements by other paths, twice, and with what is in them, in no order.
TEST(Mended, TakesOutTheSameHoweverItsPathIsShared)
{
    const auto list = Shared({"list"});
    const auto second = std::make_shared<const Path>(Shared({"list"}), std::vector<PathStep>{std::size_t{1}});
    const std::vector<Finding> findings{
        Change(At({"list", FIRST}), Mend::Remove),
        Change(Path(second, {"a"}), Mend::Remove),
        Change(Path(list, {std::size_t{3}}), Mend::Remove),
        Change(At({"list", std::size_t{3}, "b"}), Mend::Remove),
        Change(Path(list, {FIRST}), Mend::Remove),
        Change(At({"list", std::size_t{1}, "a"}), Mend::Remove),
        Change(Path(list, {std::size_t{4}, FIRST}), Mend::RemoveElement),
        Change(At({"list", std::size_t{9}}), Mend::Remove),
    };
    EXPECT_EQ(WriteJson(Mended(ReadJson(R"({"list": [0, {"a": 1, "b": 2}, 2, {"b": 3}, [4], 5]})"), findings)),
              R"({"list":[{"b":2},2,5]})");
}

TEST(Mended, ReplacesInOrder)
{
    const PropertyTree tree = ReadJson(R"({"a": {"b": 1, "c": 2}})");
    const Finding inner = Change(At({"a", "b"}), Mend::Replace, 3);
    const Finding outer = Change(At({"a"}), Mend::Replace, ReadJson(R"({"b": 4})"));
    const Finding other = Change(At({"a", "c"}), Mend::Remove);
    const auto mended = [&tree](std::vector<Finding> findings) { return WriteJson(Mended(tree, findings)); };
    EXPECT_EQ(mended({inner, outer, other}), R"({"a":{"b":4}})");
    EXPECT_EQ(mended({outer, inner}), R"({"a":{"b":3}})");
    EXPECT_EQ(mended({outer, inner, outer}), R"({"a":{"b":4}})");
    EXPECT_EQ(mended({inner, outer, inner}), R"({"a":{"b":3}})");
    EXPECT_EQ(mended({inner, Change(At({"a"}), Mend::Replace, ReadJson("{}")), inner}), R"({"a":{}})");
    EXPECT_EQ(mended({Change(At({}), Mend::Replace, 7), inner}), "7");
}

TEST(Mended, DoesNotTakeOutTheRoot)
{
    const PropertyTree tree = ReadJson("[[1]]");
    const std::vector<Finding> findings{Change(At({}), Mend::Remove), Change(At({FIRST}), Mend::RemoveElement),
                                        Change(At({}), Mend::RemoveElement)};
    EXPECT_EQ(Mended(tree, findings), tree);
    EXPECT_EQ(WriteJson(Mended(tree, std::vector{Change(Path(Shared({FIRST, FIRST}), {}), Mend::RemoveElement)})), "[]");
}

TEST(Paths, AreTheSameHoweverTheyAreShared)
{
    const auto effect = Shared({std::size_t{2}, "effects"});
    const Path path(effect, {FIRST, "radius"});
    EXPECT_EQ(path.ToText(), "2/effects/0/radius");
    EXPECT_EQ(path.Steps(), (std::vector<PathStep>{std::size_t{2}, "effects", FIRST, "radius"}));
    EXPECT_EQ(path, At({std::size_t{2}, "effects", FIRST, "radius"}));
    EXPECT_EQ(path, Path(std::make_shared<const Path>(effect, std::vector<PathStep>{FIRST}), {"radius"}));
    EXPECT_NE(path, At({std::size_t{2}, "effects", FIRST}));
    EXPECT_NE(path, Path(effect, {std::size_t{1}, "radius"}));
    EXPECT_NE(At({"1"}), At({std::size_t{1}}));
}

// So that many findings in an effect that stands deep in others take little memory.
TEST(Paths, ShareTheWayToTheirEffect)
{
    const PropertyTree tree = ReadJson(R"([{"name": "effectSettingsTileStub", "effectRows":
        [{"cols": [[{"name": "EFFECT_ACID", "radius": "x", "sigma": "y"}]]}], "x": 1}, {"name": "EFFECT_ACID", "y": 2}])");
    const std::vector<Finding> findings = Check(tree);
    ASSERT_EQ(findings.size(), 4u);
    EXPECT_EQ(findings[0].path.ToText(), "0/effectRows/0/cols/0/0/radius");
    EXPECT_EQ(findings[0].path.OwnSteps(), std::vector<PathStep>{"radius"});
    EXPECT_EQ(findings[0].path.Start(), findings[1].path.Start());
    EXPECT_EQ(findings[0].path.Start()->ToText(), "0/effectRows/0/cols/0/0");
    EXPECT_EQ(findings[0].path.Start()->Start(), findings[2].path.Start());
    EXPECT_EQ(findings[2].path.ToText(), "0/x");
    EXPECT_EQ(findings[3].path.ToText(), "1/y");
    EXPECT_EQ(Check(tree.getList()[1])[0].path.Start(), nullptr);
}

TEST(Paths, AreShownWithEscapes)
{
    EXPECT_EQ(At({std::size_t{2}, "a/b", "c~d", ""}).ToText(), "2/a~1b/c~0d/");
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
