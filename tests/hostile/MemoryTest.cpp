#include "Exception/Exception.h"
#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/ResizeSettings.h"
#include "catalogue/CatalogueFixture.h"
#include "support/FailingMemory.h"

#include <new>
#include <string>

// Every allocation in turn is refused to everything that an effect can be asked for. That nothing leaks is for the sanitizer to
// see.
namespace Catalogue
{
namespace
{

using Support::FailingMemory;

// Does the work while the first, the second, ... allocation fails, alone or with all after it, until the work gets through.
template <class Work> void WithoutMemory(const std::string& what, Work work)
{
    for (const auto mode : {FailingMemory::Mode::Once, FailingMemory::Mode::FromThenOn})
    {
        for (std::size_t successes = 0;; ++successes)
        {
            SCOPED_TRACE(what + " with " + std::to_string(successes) + " allocations");
            bool hasFailed = false;
            try
            {
                const FailingMemory failing(successes, mode);
                try
                {
                    work();
                }
                catch (...)
                {
                    hasFailed = failing.HasFailed();
                    throw;
                }
                if (!failing.HasFailed())
                {
                    break;
                }
            }
            catch (const std::bad_alloc&)
            {
                EXPECT_TRUE(hasFailed);
                continue;
            }
            ADD_FAILURE() << "went on without memory";
        }
    }
    work();
}

} // namespace

class MemoryTest : public CatalogueTest
{
protected:
    // With texts that do not fit into a string itself.
    static PropertyTree LongForm()
    {
        PropertyTree tree = SampleForm();
        for (const Field& field : GetParam().fields)
        {
            if (field.kind == Kind::String)
            {
                tree[field.key] = std::string(100, 'x');
            }
        }
        return tree;
    }

    static std::shared_ptr<IEffectSettings> MakeSample()
    {
        const auto effect = Make();
        effect->Deserialize(LongForm());
        return effect;
    }
};

TEST_P(MemoryTest, FailsInAWrite)
{
    const auto effect = MakeSample();
    const PropertyTree expected = StoredForm(*effect);
    PropertyTree tree;
    WithoutMemory("Serialize", [&] { effect->Serialize(tree); });
    EXPECT_EQ(tree, expected);
    WithoutMemory("SerializePtr", [&] { EffectSettings::SerializePtr(tree, effect); });
    EXPECT_EQ(tree["name"], PropertyTree(GetParam().classId));
}

TEST_P(MemoryTest, FailsInARead)
{
    const PropertyTree tree = LongForm();
    const auto effect = Make();
    WithoutMemory("Deserialize", [&] { effect->Deserialize(tree); });
    // What is added at each try stands there several times.
    if (std::ranges::none_of(GetParam().fields, &Field::isAppended))
    {
        EXPECT_EQ(StoredForm(*effect), StoredForm(*MakeSample()));
        WithoutMemory("Deserialize of nothing", [&] { effect->Deserialize(Map({})); });
        EXPECT_EQ(StoredForm(*effect), DefaultTree());
    }
    if (GetParam().place == Place::None)
    {
        return;
    }
    PropertyTree named = tree;
    named["name"] = GetParam().classId;
    std::shared_ptr<IEffectSettings> read;
    WithoutMemory("DeserializePtr", [&] { EffectSettings::DeserializePtr(named, read); });
    EXPECT_EQ(StoredForm(*read), StoredForm(*MakeSample()));
}

TEST_P(MemoryTest, FailsInACopy)
{
    const auto effect = MakeSample();
    std::shared_ptr<IEffectSettings> clone;
    WithoutMemory("Clone", [&] { clone = effect->Clone(); });
    EXPECT_EQ(StoredForm(*clone), StoredForm(*effect));
    const auto other = Make();
    if (GetParam().className != "EffectSettingsSimple") // it has no record
    {
        WithoutMemory("SetEffectSettings", [&] { other->SetEffectSettings(effect->GetEffectSettings()); });
    }
    bool isEqual = false;
    WithoutMemory("operator==", [&] { isEqual = *clone == *effect; });
    EXPECT_EQ(isEqual, GetParam().equalsItsCopy);
    WithoutMemory("IsEmpty", [&] { isEqual = effect->IsEmpty(); });
    WithoutMemory("Add", [&] { other->Add(*effect); });
}

TEST_P(MemoryTest, FailsAtAProperty)
{
    const auto effect = MakeSample();
    const auto copy = MakeSample();
    std::unique_ptr<IEffectSettings::IPropertyAccess> access;
    WithoutMemory("GetPropertyAccess", [&] { access = effect->GetPropertyAccess(); });
    if (!access)
    {
        return;
    }
    WithoutMemory("ListProperties", [&] { EXPECT_EQ(access->ListProperties().size(), GetParam().fields.size()); });
    for (const Field& field : GetParam().fields)
    {
        PropertyTree value;
        WithoutMemory("GetProperty " + field.key, [&] { value = access->GetProperty(field.key); });
        EXPECT_EQ(value, copy->GetPropertyAccess()->GetProperty(field.key));
        WithoutMemory("SetProperty " + field.key, [&] { access->SetProperty(field.key, field.defaultValue); });
    }
}

TEST_P(MemoryTest, IsNotNeededToDestroy)
{
    auto effect = MakeSample();
    PropertyTree tree = StoredForm(*effect);
    const FailingMemory failing;
    effect.reset();
    tree = PropertyTree();
    EXPECT_FALSE(failing.HasFailed());
}

INSTANTIATE_TEST_SUITE_P(All, MemoryTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

// Goes on with the next id where it gets through, since what is registered stays.
TEST(MemoryRegistry, FailsInRegisterFactory)
{
    std::string id = std::string(100, 'x') + 'A';
    const IEffectSettings::Factory factory = [text = std::string(100, 'y')] // too large to stand in the function itself
    { return text.empty() ? nullptr : Ombrel::PhotoCore::AcidSettings::CreateBase(); };
    WithoutMemory("RegisterFactory",
                  [&]
                  {
                      IEffectSettings::RegisterFactory(id, factory);
                      ++id.back();
                  });
    EXPECT_THROW(IEffectSettings::CreateEffectSettings(id), Ombrel::Exception) << "a failed attempt left something";
    EXPECT_EQ(id.back(), 'D'); // once for each mode, and once more
    for (--id.back(); id.back() >= 'A'; --id.back())
    {
        EXPECT_EQ(IEffectSettings::CreateEffectSettings(id)->GetClassId(), "EFFECT_ACID");
    }
}

// Fails at a throw site, which says so in full or not at all.
template <class Work> void ExpectFailure(const std::string& what, const std::string& description, Work work)
{
    WithoutMemory(what,
                  [&]
                  {
                      try
                      {
                          work();
                      }
                      catch (const Ombrel::Exception& failure)
                      {
                          const std::string* text = boost::get_error_info<Ombrel::ErrorDescription>(failure);
                          EXPECT_TRUE(text && *text == description) << what;
                          EXPECT_TRUE(boost::get_error_info<Ombrel::ErrorCallStack>(failure)) << what;
                          return;
                      }
                      ADD_FAILURE() << what << " did not fail";
                  });
}

TEST(MemoryThrowSites, FailInTheRegistry)
{
    const std::string id(100, 'z');
    const std::string unknown = "Unknown Effect Setting type (" + id + ")!";
    ExpectFailure("CreateEffectSettings", unknown, [&] { IEffectSettings::CreateEffectSettings(id); });

    const PropertyTree tree = Map({{"name", PropertyTree(id)}});
    std::shared_ptr<IEffectSettings> effect;
    ExpectFailure("DeserializePtr", unknown, [&] { EffectSettings::DeserializePtr(tree, effect); });
    EXPECT_FALSE(effect);

    IEffectSettings::RegisterFactory(id, &Ombrel::PhotoCore::AcidSettings::CreateBase);
    ExpectFailure("RegisterFactory", "Duplicate class id (" + id + ")!",
                  [&] { IEffectSettings::RegisterFactory(id, nullptr); });
    EXPECT_TRUE(IEffectSettings::CreateEffectSettings(id)) << "the old factory is gone";
}

TEST(MemoryThrowSites, FailInTheResizer)
{
    using Resizer = Ombrel::Proc::SettingsResizer;
    Ombrel::PhotoCore::ResizeSettings effect;
    effect.GetTypedSettings().SetCustomMode(Resizer::CustomModes::Fit, {640, 480, 0, 0});
    ExpectFailure("Deserialize", "Aspect is not specified", [&] { effect.Deserialize(Map({})); });
}

} // namespace Catalogue
