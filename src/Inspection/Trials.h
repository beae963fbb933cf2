#ifndef OMBREL_INSPECTION_TRIALS_H
#define OMBREL_INSPECTION_TRIALS_H

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace Ombrel::Inspection
{

/// To the value of a key, or to an element of a list.
struct WayStep
{
    std::string_view key;
    bool isElement = false; // without a key
};

using Way = std::vector<WayStep>;

/// A record in an effect, and the way from the effect's map to a map of the record.
struct RecordPlace
{
    const Proc::RecordSchema* schema = nullptr;
    Way way;
};

/// Finds out by values that are set in effects of one class what no field list says. No value is tried that reads otherwise by
/// its kind alone.
class Trials
{
public:
    using RecordSchema = Proc::RecordSchema;

    /// Both stay with the caller. The class has a schema.
    Trials(const PhotoCore::EffectClass& effectClass, const RecordSchema& schema) : m_class(effectClass), m_schema(schema) {}

    /// Nothing where no value can be tried.
    std::optional<bool> IsCompared(const RecordPlace& place, std::size_t field) const;

    bool IsComputed(const RecordPlace& place, std::size_t field) const;

private:
    struct Subject
    {
        std::shared_ptr<PhotoCore::IEffectSettings> effect;
        void* stored = nullptr;
    };

    Subject Make() const;
    Subject MakeWith(const RecordPlace& place, std::size_t field, const PropertyTree* value) const;
    bool IsWrittenAsRead(const RecordPlace& place, std::size_t field, const PropertyTree::Map& values) const;

    const PhotoCore::EffectClass& m_class;
    const RecordSchema& m_schema;
};

} // namespace Ombrel::Inspection

#endif
