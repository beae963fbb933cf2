#ifndef OMBREL_PROC_REFLECTION_SCHEMA_H
#define OMBREL_PROC_REFLECTION_SCHEMA_H

#include "OmbrelExport.h"
#include "Proc/Reflection/Context.h"
#include "PropertyTree/KeyHead.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace Ombrel
{
struct PropertyTreeKey;
}

namespace Ombrel::Proc
{

struct EnumNameTable;
struct RecordSchema;

/// The kinds of value that a field may hold.
enum class ValueKind : std::uint8_t
{
    Int32,
    UInt32,
    UInt8,
    Int64,
    UInt64,
    Float64,
    Float32,
    Bool,
    String,
    Enum,     // stored by name
    Color,    // stored as a text
    ColorMap, // colours by a number from 0 to 255, stored as a list of "key" and "value"
    Record,   // stored as a nested map
    List,
    Set,    // stored as a list
    Effect, // any effect or none, stored with its class id
    Other,  // a caller's codec without a SCHEMA
};

/// What a field holds. Constant data.
struct ValueSchema
{
    ValueKind kind;
    const EnumNameTable* names = nullptr;      // of an enumeration
    const RecordSchema& (*record)() = nullptr; // of a record
    const ValueSchema* element = nullptr;      // of a list, a set or a colour map
    bool takesNumbers = false;                 // of an enumeration: an integer is read too, as the number of a value
};

/// The description of a value whose codec has none.
inline constexpr ValueSchema OTHER_VALUE{ValueKind::Other};

/// One field of a record. Constant data.
struct FieldSchema
{
    std::string_view key;
    const ValueSchema* value;
    std::string_view access; // how C++ reaches it: "m_radius", or "SetHue, GetHue" for a setter and a getter
};

/// The fields of a record in declaration order. Not a `std::span`: the compiler would take longer for the constraints of its
/// constructors than for any of the folds.
struct FieldSchemas
{
    constexpr const FieldSchema* begin() const noexcept { return first; }
    constexpr const FieldSchema* end() const noexcept { return first + count; }
    constexpr const FieldSchema* data() const noexcept { return first; }
    constexpr std::size_t size() const noexcept { return count; }
    constexpr bool empty() const noexcept { return count == 0; }
    constexpr const FieldSchema& operator[](std::size_t index) const noexcept { return first[index]; }

    const FieldSchema* first;
    std::size_t count;
};

/// A key in the form that searches use, with the place of its field in the list. Constant data.
struct SortedKey
{
    constexpr SortedKey() = default;

    constexpr SortedKey(std::string_view key, std::size_t place)
        : head(HeadOf(key)), size(static_cast<std::uint32_t>(key.size())), index(static_cast<std::uint16_t>(place))
    {
    }

    std::uint64_t head = 0;
    std::uint32_t size = 0;
    std::uint16_t index = 0;
};

/// The description of a record type: its fields, and the folds over them. The folds take a record of this type by `void*`. An
/// index is a place in `fields`. Constant data.
struct RecordSchema
{
    std::string_view name;       // of the type, without its namespace; "pair" for every pair
    FieldSchemas fields;         // in declaration order, which is the order of reading
    const SortedKey* sortedKeys; // of the fields, in byte order

    // In the same order the library's own texts for these keys, which entries of maps refer to, or null for other keys. They
    // are found on first use.
    std::atomic<const PropertyTreeKey*>* knownKeys;
    std::atomic<bool>* areKeysFound;

    const void* (*defaults)(); // the record that missing keys are reset to; made on first use
    void (*read)(void* record, const PropertyTree::Map& source, const ReadFlags* flags);
    void (*write)(const void* record, PropertyTree::Map& target, const WriteFlags* flags, std::size_t others);
    bool (*equal)(const void* a, const void* b); // field by field, each by its own `==`
    void (*readField)(std::size_t index, void* record, const PropertyTree& child, const ReadFlags* flags);
    void (*writeField)(std::size_t index, const void* record, PropertyTree& child, const WriteFlags* flags);
};

/// The field with the key.
OMBREL_API std::optional<std::size_t> FindField(const RecordSchema& schema, std::string_view key);

/// Sets `children`, an array with a place for each field, to the children of the fields in the map, or to null.
OMBREL_API void FindChildren(const RecordSchema& schema, const PropertyTree::Map& source, const PropertyTree** children);

/// Some of the fields of a record, as bits of so many words. The bits are in the byte order of the keys.
using FieldBits = std::uint64_t;
inline constexpr std::size_t FIELDS_OF_A_WORD = 64;
constexpr std::size_t WordsFor(std::size_t fields)
{
    return (fields + FIELDS_OF_A_WORD - 1) / FIELDS_OF_A_WORD;
}

/// The children that a write of a record fills. Missing children are inserted as null trees before the first one is filled, in
/// key order, so that the map allocates at most one block. If the write fails, the children that it did not come to are
/// removed.
class OMBREL_API WriteTargets
{
public:
    /// Both arrays belong to the caller, have room for all fields and must outlive this object.
    /// @param others the map gets room for this many further entries
    /// @param isNew on entry the fields that are written, at least one; then those of them whose child this object inserts
    /// @param children set to the children of the fields that are written, in the byte order of the keys
    /// @throws std::bad_alloc; the entries of the map are then unchanged
    WriteTargets(const RecordSchema& schema, PropertyTree::Map& map, std::size_t others, FieldBits* isNew,
                 PropertyTree** children);

    WriteTargets(const WriteTargets&) = delete;
    WriteTargets& operator=(const WriteTargets&) = delete;

    ~WriteTargets()
    {
        if (!m_isDone)
        {
            Withdraw();
        }
    }

    /// The write comes to the field with this place in the list. From now on its child stays, also if filling it fails: a write
    /// field by field leaves it there too.
    void Come(std::size_t index) noexcept { m_next = index + 1; }

    /// All children have been filled; none is removed any more.
    void Finish() noexcept { m_isDone = true; }

private:
    OMBREL_LOCAL WriteTargets(const RecordSchema& schema, PropertyTree::Map& map, FieldBits* isNew) noexcept;

    void Withdraw() noexcept;

    const RecordSchema& m_schema;
    PropertyTree::Map& m_map;
    FieldBits* m_isNew;
    std::size_t m_next = 0; // the place in the list of the first field that the write has not come to
    bool m_isDone = false;
};

} // namespace Ombrel::Proc

#endif
