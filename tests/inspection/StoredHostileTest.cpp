#include "Inspection/StoredEffects.h"

#include "Findings.h"

#include "Exception/Exception.h"
#include "Proc/EffectSettings/EffectPointerCodec.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/SettingsRecord.h"
#include "support/FailingMemory.h"
#include "support/SmallStack.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// Trees that nobody would store, and classes whose code fails.
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;
using namespace Ombrel::PhotoCore;

PropertyTree TilesIn(PropertyTree tree, int count)
{
    for (int level = 0; level != count; ++level)
    {
        PropertyTree outer;
        outer["name"] = "effectSettingsTileStub";
        outer["later"] = level;
        outer["pre"].append(std::move(tree));
        tree = std::move(outer);
    }
    return tree;
}

IEffectSettings& Innermost(IEffectSettings& outer, int levels)
{
    IEffectSettings* effect = &outer;
    for (; levels != 0; --levels)
    {
        effect = dynamic_cast<TileSettings&>(*effect).Pre().at(0).get();
    }
    return *effect;
}

// Only the classes' own reading and writing take stack, for each of 512 levels at most.
constexpr std::size_t STACK_OF_CLASSES = 1024 * 1024 * (Support::HAS_SANITIZER ? 8 : 1);
constexpr std::size_t SMALL_STACK = 128 * 1024;

TEST(StoredEffectsOfAnyDepth, KeepsWhatIsTooDeepAsATree)
{
    PropertyTree tree = TilesIn({}, 200000);
    const auto work = [&tree]
    {
        StoredEffects stored;
        stored.Load(tree);
        EXPECT_EQ(stored.Findings().size(), 513u);
        EXPECT_EQ(std::ranges::count(stored.Findings(), FindingCode::TooDeep, &Finding::code), 1);
        EXPECT_TRUE(stored.Save() == tree);
        auto& innermost = dynamic_cast<TileSettings&>(Innermost(*stored.Effect(0), 511));
        EXPECT_EQ(innermost.Pre().size(), 0u);
        innermost.HelperSetting().SetUndoSet(true);
        const PropertyTree saved = stored.Save();
        PropertyTree* level = &tree;
        for (int count = 0; count != 511; ++count)
        {
            level = &(*level)["pre"].getList()[0];
        }
        (*level)["helperSettings"]["undoSet"] = true;
        EXPECT_TRUE(saved == tree);
    };
    Support::RunOnStack(STACK_OF_CLASSES, work);
}

TEST(StoredEffectsOfAnyDepth, PassesThroughOtherTrees)
{
    PropertyTree lists;
    PropertyTree maps;
    for (int level = 0; level != 100000; ++level)
    {
        PropertyTree outer;
        outer.append(std::move(lists));
        lists = std::move(outer);
        PropertyTree map;
        map["name"] = std::move(maps);
        maps = std::move(map);
    }
    PropertyTree effect;
    effect["name"] = "EFFECT_ACID";
    effect["helperSettings"]["undoSet"] = true;
    effect["helperSettings"]["lists"] = lists;
    effect["maps"] = maps;
    PropertyTree tree;
    tree.append(effect);
    tree.append(lists);
    tree.append(maps);
    effect["radius"] = maps;
    tree.append(std::move(effect));
    const auto work = [&tree]
    {
        StoredEffects stored;
        stored.Load(tree);
        EXPECT_TRUE(stored.Effect(0));
        EXPECT_FALSE(stored.Effect(1) || stored.Effect(2) || stored.Effect(3));
        EXPECT_TRUE(stored.Save() == tree);
        stored.Effect(0)->HelperSetting().SetUndoSet(false);
        tree.getList()[0]["helperSettings"].getMap().erase("undoSet");
        EXPECT_TRUE(stored.Save() == tree);
    };
    Support::RunOnStack(SMALL_STACK, work);
}

struct Odd : Proc::SettingsRecord<Odd>
{
    static constexpr const char* CLASS_NAME = "EFFECT_STORED_ODD";
    static const std::string CLASS_ID;

    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        return Describe<
            Odd, FieldList<AccessorDescriptor<"read", &Odd::SetRead, &Odd::GetRead>,
                           AccessorDescriptor<"write", &Odd::SetWrite, &Odd::GetWrite>, FieldDescriptor<&Odd::m_effects>>>();
    }

    void SetRead(std::int32_t value) { m_read = value == 7 ? throw 7 : value; }
    std::int32_t GetRead() const { return m_read; }
    void SetWrite(std::int32_t value) { m_write = value; }
    std::int32_t GetWrite() const { return m_write == 7 ? throw std::runtime_error("seven") : m_write; }

    bool operator==(const Odd&) const { return true; }

    std::vector<std::shared_ptr<IEffectSettings>> m_effects;

private:
    std::int32_t m_read = 0;
    std::int32_t m_write = 0;
};

const std::string Odd::CLASS_ID{Odd::CLASS_NAME};

class OddSettings : public EffectSettingsOneInputReflection<Odd, OddSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;
};

void RegisterOdd()
{
    if (!FindEffectClass(Odd::CLASS_NAME))
    {
        RegisterEffectClass<OddSettings>();
        IEffectSettings::RegisterFactory("EFFECT_STORED_FACTORY", &OddSettings::CreateBase);
    }
}

std::string LoadedAndSaved(const char* json, std::string* lines = nullptr)
{
    RegisterOdd();
    StoredEffects stored;
    stored.Load(ReadJson(json));
    if (lines)
    {
        *lines = Support::LinesOf(stored.Findings());
    }
    PropertyTree read;
    EffectSettings::SerializePtr(read, stored.Effect(0));
    EXPECT_EQ(WriteJson(stored.Save()), WriteJson(ReadJson(json)));
    return WriteJson(read);
}

TEST(StoredEffectsOfCallers, StayAsTreesWhereTheirCodeFails)
{
    std::string lines;
    EXPECT_EQ(LoadedAndSaved(R"({"name": "EFFECT_STORED_ODD", "read": 7})", &lines), "null");
    EXPECT_EQ(lines, "error refused at read\n");
    EXPECT_EQ(LoadedAndSaved(R"({"name": "EFFECT_STORED_ODD", "write": 7, "x": 1})", &lines), "null");
    EXPECT_EQ(lines, "warning unknown-key at x -> taken out\nwarning changes-on-write at \nerror refused at \n");
    EXPECT_EQ(LoadedAndSaved(R"({"name": "EFFECT_STORED_FACTORY", "read": 7})", &lines), "null");
    EXPECT_EQ(lines, "note no-schema at \nerror refused at \n");
}

TEST(StoredEffectsOfCallers, StayAsTreesInOtherEffects)
{
    std::string lines;
    EXPECT_EQ(LoadedAndSaved(R"({"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_STORED_ODD", "effects": [
                {"name": "EFFECT_STORED_ODD", "read": 1}, {"name": "EFFECT_STORED_ODD", "write": 7},
                {"name": "EFFECT_STORED_ODD", "read": 7}, {"name": "EFFECT_STORED_FACTORY", "read": "x"}]}]})",
                             &lines),
              R"({"name":"effectSettingsTileStub","pre":[{"effects":[{"name":"EFFECT_STORED_ODD","read":1}],)"
              R"("name":"EFFECT_STORED_ODD"}]})");
    EXPECT_NE(lines.find("error refused at pre/0/effects/1\n"), std::string::npos) << lines;
    EXPECT_NE(lines.find("error refused at pre/0/effects/3\n"), std::string::npos) << lines;
}

TEST(StoredEffectsOfCallers, WithoutASchemaAreMergedByKey)
{
    RegisterOdd();
    StoredEffects stored;
    stored.Load(ReadJson(R"({"name": "EFFECT_STORED_FACTORY", "read": 2.0, "write": 1, "x": [1]})"));
    ASSERT_TRUE(stored.Effect(0));
    dynamic_cast<OddSettings&>(*stored.Effect(0)).GetTypedSettings().SetWrite(3);
    EXPECT_EQ(WriteJson(stored.Save()), R"({"name":"EFFECT_STORED_FACTORY","read":2.0,"write":3,"x":[1]})");
}

TEST(StoredEffectsOfCallers, ThatCannotBeWrittenAnyMoreAreNotSaved)
{
    RegisterOdd();
    StoredEffects stored;
    stored.Load(ReadJson(R"([{"name": "EFFECT_STORED_ODD"}])"));
    dynamic_cast<OddSettings&>(*stored.Effect(0)).GetTypedSettings().SetWrite(7);
    EXPECT_THROW(stored.Save(), std::runtime_error);
}

TEST(StrictLoad, IsAllOrNothing)
{
    StoredEffects stored;
    stored.LoadStrict(ReadJson(R"([{"name": "EFFECT_ACID", "x": 1}, null])"));
    const std::string before = WriteJson(stored.Save());
    EXPECT_EQ(before, R"([{"name":"EFFECT_ACID","x":1},null])");
    EXPECT_EQ(Support::LinesOf(stored.Findings()), "warning unknown-key at 0/x -> taken out\nnote null-effect at 1\n");
    const auto acid = stored.Effect(0);
    EXPECT_THROW(stored.LoadStrict(ReadJson(R"([{"name": "EFFECT_VIBRANCE"}, {"name": "EFFECT_OF_TOMORROW"}])")), Exception);
    EXPECT_THROW(stored.LoadStrict(ReadJson(R"([{"name": "EFFECT_VIBRANCE", "strength": "x"}])")), std::invalid_argument);
    EXPECT_THROW(stored.LoadStrict(ReadJson("3")), std::invalid_argument);
    EXPECT_THROW(stored.LoadStrict(ReadJson("{}")), std::out_of_range);
    EXPECT_THROW(stored.LoadStrict(TilesIn({}, 513)), std::length_error);
    EXPECT_EQ(stored.Effect(0), acid);
    EXPECT_EQ(stored.Findings().size(), 2u);
    EXPECT_EQ(WriteJson(stored.Save()), before);
    acid->GetPropertyAccess()->SetProperty("radius", PropertyTree(2));
    EXPECT_EQ(WriteJson(stored.Save()), R"([{"name":"EFFECT_ACID","radius":2,"x":1},null])");
}

TEST(StoredEffectsWithoutMemory, StayAsTheyAre)
{
    const PropertyTree tree = ReadJson(R"([{"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_OF_TOMORROW"},
        {"name": "EFFECT_VIBRANCE", "strength": 2, "x": 1}]}, {"name": "EFFECT_ACID", "radius": "a text that takes memory"}])");
    StoredEffects stored;
    stored.Load(ReadJson(R"({"name": "EFFECT_ACID"})"));
    const auto fails = [](std::size_t successes, auto work)
    {
        const Support::FailingMemory memory(successes, Support::FailingMemory::Mode::Once);
        try
        {
            work();
        }
        catch (const std::bad_alloc&)
        {
            return true;
        }
        return memory.HasFailed(); // and somebody went on without
    };
    std::size_t successes = 0;
    for (PropertyTree copy = tree; fails(successes, [&] { stored.Load(std::move(copy)); }); copy = tree)
    {
        ASSERT_EQ(WriteJson(stored.Save()), R"({"name":"EFFECT_ACID"})") << "after " << successes;
        ++successes;
    }
    EXPECT_GT(successes, 50u);
    EXPECT_TRUE(stored.Save() == tree);
    dynamic_cast<TileSettings&>(*stored.Effect(0)).Pre().at(0)->HelperSetting().SetUndoSet(true);
    const PropertyTree expected = stored.Save();
    PropertyTree saved;
    for (successes = 0; fails(successes, [&] { saved = stored.Save(); }); ++successes)
    {
    }
    EXPECT_GT(successes, 20u);
    EXPECT_TRUE(saved == expected);
}

// A load of many effects that are refused, of which each list has many, takes no more than twice as long for twice as many.
PropertyTree Refused(int count)
{
    PropertyTree tree;
    tree["name"] = "effectSettingsTileStub";
    PropertyTree::List& list = tree["pre"].makeList(static_cast<std::size_t>(count));
    for (int index = 0; index != count; ++index)
    {
        PropertyTree effect;
        effect["name"] = index % 2 == 0 ? "EFFECT_OF_TOMORROW" : "EFFECT_ACID";
        effect["radius"] = index;
        list.push_back(std::move(effect));
    }
    return tree;
}

TEST(StoredEffectsOfAnySize, AreLoadedAndSavedInLinearTime)
{
    const auto timeFor = [](int count)
    {
        const PropertyTree tree = Refused(count);
        const auto start = std::chrono::steady_clock::now();
        StoredEffects stored;
        stored.Load(tree);
        auto& effects = dynamic_cast<TileSettings&>(*stored.Effect(0)).Pre();
        std::reverse(effects.begin(), effects.end());
        for (std::size_t index = 0; index < effects.size(); index += 3)
        {
            effects[index]->HelperSetting().SetUndoSet(true);
        }
        EXPECT_EQ(stored.Save()["pre"].getList().size(), static_cast<std::size_t>(count));
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    timeFor(1000);
    EXPECT_LT(timeFor(20000), 10 * 4 * timeFor(5000) + 0.5);
}

} // namespace
