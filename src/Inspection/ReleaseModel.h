#ifndef OMBREL_INSPECTION_RELEASE_MODEL_H
#define OMBREL_INSPECTION_RELEASE_MODEL_H

#include "Inspection/Release.h"
#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <array>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Ombrel::Inspection
{

struct ReleaseRecord;

/// What a field of a release holds. A schema says it but for records, which a schema knows by code.
struct ReleaseValue
{
    Proc::ValueSchema schema{Proc::ValueKind::Other};
    const ReleaseRecord* record = nullptr;
    const ReleaseValue* element = nullptr; // of a list or a set

    /// Whether the schema says all: no record and no effect stands in it.
    bool IsSimple() const noexcept;
};

struct ReleaseField
{
    std::string key;
    ReleaseValue value;
    PropertyTree byDefault; // with all its keys
};

struct ReleaseRecord
{
    std::vector<ReleaseField> fields; // in reading order

    const ReleaseField* Find(std::string_view key) const noexcept;
};

struct ReleaseClass
{
    bool isRegistered = false;
    ReleaseRecord keys; // every key but "name"
};

struct Release::Model
{
    std::string name;
    std::unordered_map<std::string, ReleaseClass> classes; // by class id

    // What the values above refer to; all stay where they are.
    std::map<std::string, ReleaseRecord, std::less<>> records;
    std::deque<ReleaseValue> elements;
    std::deque<Proc::EnumNameTable> tables;
    std::deque<std::vector<Proc::EnumNameRow>> rows;
    std::deque<std::string> names;
};

/// The kinds as manifests name them, in their order.
inline constexpr std::array<std::string_view, 16> KIND_TEXTS{"int32",   "uint32", "uint8", "int64", "uint64", "float64",
                                                             "float32", "bool",   "text",  "name",  "colour", "colour map",
                                                             "record",  "list",   "set",   "effect"};
static_assert(KIND_TEXTS.size() == static_cast<std::size_t>(Proc::ValueKind::Other));

} // namespace Ombrel::Inspection

#endif
