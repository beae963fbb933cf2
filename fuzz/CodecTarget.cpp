#include "Fuzz.h"
#include "LiteralCodec.h"
#include "StoredEffects.h"

#include "Proc/EffectSettings/IEffectSettings.h"
#include "Proc/Reflection/Schema.h"
#include "support/WholeRecordAccess.h"

#include <algorithm>

// Two effects of one class go through the same trees, one by the library's reads and writes and one by literal ones. They must
// fail alike and stay alike at every step.
namespace Fuzz
{
namespace
{

using namespace Ombrel;
using namespace Ombrel::PhotoCore;
using Proc::ReadFlags;
using Proc::WriteFlags;
using Support::WholeRecordAccess;

// A reset to a default that is no tree's to tell: a colour map keeps what it is not given, and a converter adds its formats.
bool IsAdding(const EffectClass& effectClass)
{
    return effectClass.className == "ColorspaceConverterSettings" ||
           std::ranges::any_of(effectClass.getSchema()->fields,
                               [](const Proc::FieldSchema& field) { return field.value->kind == Proc::ValueKind::ColorMap; });
}

class Pair
{
public:
    explicit Pair(const EffectClass& effectClass)
        : m_schema(*effectClass.getSchema()), m_isAdding(IsAdding(effectClass)), m_fast(Make(effectClass)),
          m_literal(Make(effectClass))
    {
    }

    void Follow(const PropertyTree& tree)
    {
        const auto failure = FailureOf([&] { tree.getMap(); });
        if (failure)
        {
            return;
        }
        Read(tree.getMap(), {.resetMissing = false});
        if (!m_isAdding)
        {
            Read(tree.getMap(), {.resetMissing = true});
        }
        for (const bool resetTargets : {false, true})
        {
            Write(tree, {.resetTargets = resetTargets, .omitDefaults = false});
            Write(PropertyTree(), {.resetTargets = resetTargets, .omitDefaults = false});
            Write(PropertyTree(), {.resetTargets = resetTargets, .omitDefaults = true});
        }
        SetProperties(tree.getMap());
    }

private:
    void Read(const PropertyTree::Map& map, const ReadFlags& flags)
    {
        const auto failure = FailureOf([&] { m_schema.read(SubjectOf(*m_fast), map, &flags); });
        const auto expected = FailureOf([&] { LiteralRead(m_schema, SubjectOf(*m_literal), map, flags); });
        Require(failure == expected, "a read has another failure",
                expected.value_or("none") + " / " + failure.value_or("none"));
        Compare("a read makes another record");
    }

    // Into a map that holds what the tree does.
    void Write(PropertyTree tree, const WriteFlags& flags) const
    {
        PropertyTree expected = tree;
        tree.convertToMap();
        expected.convertToMap();
        m_schema.write(SubjectOf(*m_fast), tree.getMap(), &flags, 0);
        LiteralWrite(m_schema, SubjectOf(*m_literal), expected.getMap(), flags);
        RequireSame(expected, tree, "a write makes another map");
    }

    void SetProperties(const PropertyTree::Map& map)
    {
        const auto access = m_fast->GetPropertyAccess();
        if (!access)
        {
            return;
        }
        WholeRecordAccess literal(m_schema, SubjectOf(*m_literal));
        for (const auto& entry : map)
        {
            const std::string& key = entry.first;
            const auto failure = FailureOf([&] { access->SetProperty(key, entry.second); });
            const auto expected = FailureOf([&] { literal.SetProperty(key, entry.second); });
            Require(failure == expected, "a property has another failure", key);
            RequireSame(literal.GetProperty(key), access->GetProperty(key), "a property is another: " + key);
        }
        Compare("setting properties makes another record");
    }

    void Compare(std::string_view what) const
    {
        RequireSame(WholeRecordAccess(m_schema, SubjectOf(*m_literal)).WriteAll(),
                    WholeRecordAccess(m_schema, SubjectOf(*m_fast)).WriteAll(), what);
    }

    const Proc::RecordSchema& m_schema;
    bool m_isAdding;
    std::shared_ptr<IEffectSettings> m_fast;
    std::shared_ptr<IEffectSettings> m_literal;
};

} // namespace
} // namespace Fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<Ombrel::PropertyTree> trees = Fuzz::ParseInput(data, size);
    const auto* const effectClass = trees.empty() ? nullptr : Fuzz::ClassOf(trees.front());
    if (effectClass && effectClass->getSchema())
    {
        Fuzz::Pair pair(*effectClass);
        std::ranges::for_each(trees, [&pair](const Ombrel::PropertyTree& tree) { pair.Follow(tree); });
    }
    return 0;
}
