#ifndef OMBREL_INSPECTION_FORM_DEFAULTS_H
#define OMBREL_INSPECTION_FORM_DEFAULTS_H

#include "Inspection/RecordInfo.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <deque>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Ombrel::Inspection
{

/// What stands under one key of a map, and its default.
struct Member
{
    std::string_view key;
    const Proc::ValueSchema* value = nullptr;
    const PropertyTree* byDefault = nullptr; // as it is written with all its keys; lasts as long as the `FormDefaults`

    // Whether the key may be left out or put in: a missing key and the stored default are read as the same.
    bool isOptional = false;
    bool isAlwaysWritten = false; // by default too
};

using Members = std::vector<Member>; // in the byte order of the keys

/// The defaults of the keys of records and effects, found on first use.
class FormDefaults
{
public:
    explicit FormDefaults(RecordInfos& infos);

    const Members& Of(const Proc::RecordSchema& schema);

    /// The keys of an effect but "name". Null if the class makes no effect.
    const Members* Of(const PhotoCore::EffectClass& effectClass);

    /// Whether a value stands in a tree as its default does: numbers by value, the elements of sets and colour maps in any
    /// order, records with keys left out that have their own defaults.
    /// @param byDefault with all its keys
    bool IsDefault(const PropertyTree& value, const Proc::ValueSchema& schema, const PropertyTree& byDefault);

private:
    bool IsDefaultRecord(const PropertyTree::Map& map, const Proc::RecordSchema& schema, const PropertyTree::Map& byDefault);
    bool IsDefaultList(const PropertyTree::List& list, const Proc::ValueSchema& schema, const PropertyTree::List& byDefault);

    // What an effect has without the two keys that every effect may have.
    struct BaseDefaults
    {
        PropertyTree implName;
        PropertyTree helperSettings;
    };

    Members MembersOf(const PhotoCore::EffectClass& effectClass, const BaseDefaults& base);
    std::optional<Members> MembersOfCallers(const PhotoCore::EffectClass& effectClass);

    RecordInfos& m_infos;
    std::unordered_map<const Proc::RecordSchema*, Members> m_records; // which stay where they are
    std::unordered_map<const PhotoCore::EffectClass*, std::optional<Members>> m_effects;
    std::deque<BaseDefaults> m_bases; // the first is that of the library's own classes
};

} // namespace Ombrel::Inspection

#endif
