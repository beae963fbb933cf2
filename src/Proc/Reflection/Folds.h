#ifndef OMBREL_PROC_REFLECTION_FOLDS_H
#define OMBREL_PROC_REFLECTION_FOLDS_H

#include "Proc/Lasting.h"
#include "Proc/Reflection/DefaultRecord.h"
#include "Proc/Reflection/FieldList.h"
#include "Proc/Reflection/Reflected.h"

#include <array>
#include <cstddef>
#include <utility>

// How a record is written to a tree and read from it.
//
// Reading and writing visit the fields in declaration order, which is the order in which setters run and in which a failure
// stops.
//
// A map has its keys in byte order. For each record, the compiler makes a constant table of the keys in the same order. A read
// first walks map and table side by side, which finds the child of each field, and then decodes the children. A write first
// finds the fields to store, adds their keys in byte order to a map with room for exactly that many, and then encodes the
// values.
//
// The routines that depend only on the kind of a value exist once, in `Codec.cpp`. Compiled for each field are its key, its
// offset and the comparison with the default.
namespace Ombrel::Proc
{
namespace ReflectedDetail
{

// A record that shares its map with others lists their keys in RESERVED_KEYS.
template <class Record, class List> consteval bool HasOwnKeys()
{
    if constexpr (requires { Record::RESERVED_KEYS; })
    {
        for (const std::string_view key : Record::RESERVED_KEYS)
        {
            if (List::HasKey(key))
            {
                return false;
            }
        }
    }
    return true;
}

/// The folds over the fields of `Record`. An index tells two fields with equal descriptors apart.
template <class Record, class List, class Indices = std::make_index_sequence<List::SIZE>> struct Folds;

template <class Record, class... Descriptors, std::size_t... Index>
struct Folds<Record, FieldList<Descriptors...>, std::index_sequence<Index...>>
{
    using List = FieldList<Descriptors...>;

    static_assert(HasOwnKeys<Record, List>(), "a field has a key that belongs to the effect itself");

    static const Record& Default() { return Lasting<&MakeDefaultRecord<Record>>(); }
    static const void* ErasedDefault() { return &Default(); }

    template <class Descriptor>
    static void ReadOrReset(const PropertyTree* child, Record& record, const ReadFlags* flags, const Record& defaults)
    {
        if (child)
        {
            Descriptor::Read(*child, record, flags);
        }
        else if (flags->resetMissing)
        {
            Descriptor::Reset(record, defaults);
        }
    }

    // Each field tests the flag. If it were tested once, before the fields, the compiler would make two copies of this code.
    static void Read([[maybe_unused]] void* subject, const PropertyTree::Map& source, [[maybe_unused]] const ReadFlags* flags)
    {
        std::array<const PropertyTree*, List::SIZE> children;
        FindChildren(SCHEMA, source, children.data());
        [[maybe_unused]] Record& record = *static_cast<Record*>(subject);
        [[maybe_unused]] const Record& defaults = Default();
        (ReadOrReset<Descriptors>(children[Index], record, flags, defaults), ...);
    }

    // Clears the place, so that a failure does not take the child away again: as a write field by field, it leaves it there.
    template <class Descriptor> static void WriteOrOmit(PropertyTree*& place, const Record& record, const WriteFlags* flags)
    {
        if (PropertyTree* child = std::exchange(place, nullptr))
        {
            Descriptor::Write(*child, record, flags);
        }
    }

    static void Write(const void* subject, PropertyTree::Map& target, const WriteFlags* flags, std::size_t others)
    {
        [[maybe_unused]] const Record& record = *static_cast<const Record*>(subject);
        std::array<bool, List::SIZE> isWritten;
        if (flags->omitDefaults)
        {
            [[maybe_unused]] const Record& defaults = Default();
            isWritten = {!Descriptors::Equal(record, defaults)...};
        }
        else
        {
            isWritten.fill(true);
        }
        std::array<bool, List::SIZE> isNew;
        std::array<PropertyTree*, List::SIZE> children;
        WriteTargets targets(SCHEMA, target, others, isWritten.data(), isNew.data(), children.data());
        (WriteOrOmit<Descriptors>(children[Index], record, flags), ...);
        targets.Finish();
    }

    static bool Equal([[maybe_unused]] const void* a, [[maybe_unused]] const void* b)
    {
        return (Descriptors::Equal(*static_cast<const Record*>(a), *static_cast<const Record*>(b)) && ...);
    }

    static void ReadField([[maybe_unused]] std::size_t index, [[maybe_unused]] void* record,
                          [[maybe_unused]] const PropertyTree& child, [[maybe_unused]] const ReadFlags* flags)
    {
        ((index == Index ? Descriptors::Read(child, *static_cast<Record*>(record), flags) : void()), ...);
    }

    static void WriteField([[maybe_unused]] std::size_t index, [[maybe_unused]] const void* record,
                           [[maybe_unused]] PropertyTree& child, [[maybe_unused]] const WriteFlags* flags)
    {
        ((index == Index ? Descriptors::Write(child, *static_cast<const Record*>(record), flags) : void()), ...);
    }

    static constexpr std::array<FieldSchema, List::SIZE> FIELDS{
        FieldSchema{Descriptors::KEY, &SCHEMA_OF<typename Descriptors::template Value<Record>>, Descriptors::ACCESS}...};

    static constexpr RecordSchema SCHEMA{
        .name = TYPE_NAME<Record>,
        .fields = FIELDS,
        .sortedKeys = List::SORTED_KEYS.data(),
        .defaults = &ErasedDefault,
        .read = &Read,
        .write = &Write,
        .equal = &Equal,
        .readField = &ReadField,
        .writeField = &WriteField,
    };
};

} // namespace ReflectedDetail

template <class Record, class List> const RecordSchema& Describe() noexcept
{
    return ReflectedDetail::Folds<Record, List>::SCHEMA;
}

} // namespace Ombrel::Proc

#endif
