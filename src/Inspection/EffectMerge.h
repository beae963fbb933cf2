#ifndef OMBREL_INSPECTION_EFFECT_MERGE_H
#define OMBREL_INSPECTION_EFFECT_MERGE_H

#include "Inspection/CheckContext.h"
#include "Inspection/Fingerprints.h"
#include "Inspection/RefusedEffects.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Ombrel::Inspection
{

/// Puts what has changed in an effect into its loaded tree. What has not changed is copied as it stands there.
class EffectMerge
{
public:
    /// @param kept effects in the loaded tree that were not read
    explicit EffectMerge(const EffectSet& kept) : m_kept(kept) {}

    /// @param before what the effect wrote when it was loaded
    /// @param now what it writes now
    PropertyTree Merged(const PropertyTree& loaded, const PropertyTree& before, const PropertyTree& now);

private:
    // One value in the three trees, each of which may lack it.
    struct Value
    {
        const PropertyTree* loaded = nullptr;
        const PropertyTree* before = nullptr;
        const PropertyTree* now = nullptr;
        const Proc::ValueSchema* schema = nullptr; // null where nothing is known of the value
        const PropertyTree* byDefault = nullptr;   // of a field: its value where the key is missing
    };

    struct Task
    {
        Value value;
        PropertyTree* target;
    };

    enum class Outcome : std::uint8_t
    {
        Loaded, // as it stands in the loaded tree, or not at all
        Now,    // as it is written now, or not at all
        Inside, // its parts differ
    };

    Outcome OutcomeOf(const Value& value);
    Outcome OutcomeOfEffect(const Value& value) const;
    bool HasKept(const Value& value) const;
    void Put(const Value& value, PropertyTree::Map& target, const std::string& key);
    void PutElement(const Value& value, PropertyTree& target);
    Value FieldOf(const Value& outer, std::string_view key);

    void MergeInside(const Task& task);
    void MergeMaps(const Value& value, PropertyTree& target);
    void MergeLists(const Value& value, PropertyTree& target);
    void MergeSets(const Value& value, PropertyTree& target);
    void MergeColorMaps(const Value& value, PropertyTree& target);
    std::string KeyOfElement(const PropertyTree& element, const Proc::ValueSchema& schema);

    const EffectSet& m_kept;
    CheckContext m_context;
    Fingerprints m_prints;
    std::vector<Task> m_pending;
};

} // namespace Ombrel::Inspection

#endif
