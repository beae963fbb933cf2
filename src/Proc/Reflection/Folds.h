#ifndef OMBREL_PROC_REFLECTION_FOLDS_H
#define OMBREL_PROC_REFLECTION_FOLDS_H

#include "Proc/Reflection/FieldList.h"
#include "Proc/Reflection/Reflected.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <utility>

// How a record gets to a tree and back.
//
// Both ways go through the fields in declaration order, so that setters run and failures stop as the list says. A map holds its
// keys in byte order, and so does a constant table that the compiler sorts for each record: a read walks the two side by side,
// once and out of line, which gives each field its child or none, and then decodes. A write finds out which fields are to be
// stored, appends their keys in byte order to a map with room for exactly so many, and then fills them. What depends on a
// value's type alone is one routine per kind, also out of line: of a field only its key, its offset and the comparison with the
// default are code of its own.
namespace Ombrel::Proc
{
namespace ReflectedDetail
{

// A record whose map is not its own alone says in RESERVED_KEYS which keys are taken.
template <class Record> consteval bool HasOwnKeys()
{
    if constexpr (requires { Record::RESERVED_KEYS; })
    {
        for (const std::string_view key : Record::RESERVED_KEYS)
        {
            if (Fields<Record>::List::HasKey(key))
            {
                return false;
            }
        }
    }
    return true;
}

/// The folds over the fields of `Record`, which are told apart by their place in the list.
template <class Record, class List = typename Fields<Record>::List, class Indices = std::make_index_sequence<List::SIZE>>
struct Folds;

template <class Record, class... Descriptors, std::size_t... Index>
struct Folds<Record, FieldList<Descriptors...>, std::index_sequence<Index...>>
{
    static_assert(HasOwnKeys<Record>(), "a field has a key that belongs to the effect itself");

    using List = FieldList<Descriptors...>;

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

    // Neither the read nor the write is inlined: each would stand in the code twice, for callers with and without the record's
    // type. And the flag is asked for anew at each field: of what it knew beforehand the compiler would make two copies.
    [[gnu::noinline]] static void Read([[maybe_unused]] Record& record, const PropertyTree::Map& source,
                                       [[maybe_unused]] const ReadFlags* flags)
    {
        std::array<const PropertyTree*, List::SIZE> children;
        FindChildren(SCHEMA, source, children.data());
        [[maybe_unused]] const Record& defaults = Reflected<Record>::Default();
        (ReadOrReset<Descriptors>(children[Index], record, flags, defaults), ...);
    }

    // A place that the write has come to is cleared, so that its child stays whatever happens.
    template <class Descriptor> static void WriteOrOmit(PropertyTree*& place, const Record& record, const WriteFlags* flags)
    {
        if (PropertyTree* child = std::exchange(place, nullptr))
        {
            Descriptor::Write(*child, record, flags);
        }
    }

    [[gnu::noinline]] static void Write([[maybe_unused]] const Record& record, PropertyTree::Map& target,
                                        const WriteFlags* flags, std::size_t others)
    {
        std::array<bool, List::SIZE> isWritten;
        if (flags->omitDefaults)
        {
            [[maybe_unused]] const Record& defaults = Reflected<Record>::Default();
            isWritten = {!Descriptors::Equal(record, defaults)...};
        }
        else
        {
            isWritten.fill(true);
        }
        std::array<PropertyTree*, List::SIZE> children;
        WriteTargets targets(SCHEMA, target, others, isWritten.data(), children.data());
        (WriteOrOmit<Descriptors>(children[Index], record, flags), ...);
        targets.Finish();
    }

    static bool Equal(const Record& a, const Record& b) { return (Descriptors::Equal(a, b) && ...); }

    // The same for a record whose type the caller does not name.

    static const void* ErasedDefault() { return &Reflected<Record>::Default(); }

    static void ErasedRead(void* record, const PropertyTree::Map& source, const ReadFlags* flags)
    {
        Read(*static_cast<Record*>(record), source, flags);
    }

    static void ErasedWrite(const void* record, PropertyTree::Map& target, const WriteFlags* flags)
    {
        Write(*static_cast<const Record*>(record), target, flags, 0);
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
        FieldSchema{Descriptors::KEY, &SCHEMA_OF<typename Descriptors::template Value<Record>>}...};

    static constexpr RecordSchema SCHEMA{
        .name = TYPE_NAME<Record>,
        .fields = FIELDS,
        .sortedKeys = List::SORTED_KEYS.data(),
        .defaults = &ErasedDefault,
        .read = &ErasedRead,
        .write = &ErasedWrite,
        .readField = &ReadField,
        .writeField = &WriteField,
    };
};

} // namespace ReflectedDetail

template <class Record> const Record& Reflected<Record>::Default()
{
    if constexpr (std::default_initializable<Record>)
    {
        static const Record record{};
        return record;
    }
    else
    {
        static const Record record = Record::MakeDefault();
        return record;
    }
}

template <class Record> void Reflected<Record>::Read(const ReadContext<Record>& context)
{
    ReflectedDetail::Folds<Record>::Read(context.record, context.source, context.flags);
}

template <class Record> void Reflected<Record>::Write(const WriteContext<Record>& context)
{
    ReflectedDetail::Folds<Record>::Write(context.record, context.target, context.flags, context.others);
}

template <class Record> bool Reflected<Record>::Equal(const Record& a, const Record& b)
{
    return ReflectedDetail::Folds<Record>::Equal(a, b);
}

template <class Record> const RecordSchema& Reflected<Record>::Schema() noexcept
{
    return ReflectedDetail::Folds<Record>::SCHEMA;
}

} // namespace Ombrel::Proc

#endif
