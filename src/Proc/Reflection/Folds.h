#ifndef OMBREL_PROC_REFLECTION_FOLDS_H
#define OMBREL_PROC_REFLECTION_FOLDS_H

#include "OmbrelCompiler.h"
#include "OmbrelLasting.h"
#include "Proc/Reflection/DefaultRecord.h"
#include "Proc/Reflection/FieldList.h"
#include "Proc/Reflection/Reflected.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <utility>

// How a record is written to a tree and read from it.
//
// Reading and writing visit the fields in declaration order, which is the order in which setters run and in which a failure
// stops.
//
// A map has its keys in byte order. For each record, the compiler makes a constant table of the keys in the same order. A read
// first walks map and table side by side, which finds the child of each field, and then decodes the children. A write first
// finds the fields to store, as bits in the byte order of their keys, adds the keys in that order to a map with room for
// exactly that many, and then encodes the values.
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

    // Each field tests the flag. If it were tested once, before the fields, the compiler would make two copies of this code.
    static void Read([[maybe_unused]] void* subject, const PropertyTree::Map& source, [[maybe_unused]] const ReadFlags* flags)
    {
        std::array<const PropertyTree*, List::SIZE> children;
        FindChildren(SCHEMA, source, children.data());
        [[maybe_unused]] Record& record = *static_cast<Record*>(subject);
        [[maybe_unused]] const Record& defaults = Default();
        ((children[Index]       ? Descriptors::Read(*children[Index], record, flags)
          : flags->resetMissing ? Descriptors::Reset(record, defaults)
                                : void()),
         ...);
    }

    // Where the fields stand in the byte order of their keys.
    static constexpr std::array<std::size_t, List::SIZE> PLACES = []
    {
        std::array<std::size_t, List::SIZE> places{};
        for (std::size_t place = 0; place != List::SIZE; ++place)
        {
            places[List::SORTED_KEYS[place].index] = place;
        }
        return places;
    }();

    // The bits of the fields that are written. A bit is set if the field differs from its default.
    template <std::size_t Word> static FieldBits WordOf(const Record& record, bool omitDefaults)
    {
        if (!omitDefaults)
        {
            constexpr std::size_t left = List::SIZE - Word * FIELDS_OF_A_WORD;
            constexpr std::size_t fields = left < FIELDS_OF_A_WORD ? left : FIELDS_OF_A_WORD;
            return ~FieldBits{0} >> (FIELDS_OF_A_WORD - fields);
        }
        const Record& defaults = Default();
        return ((PLACES[Index] / FIELDS_OF_A_WORD == Word
                     ? FieldBits{!Descriptors::Equal(record, defaults)} << PLACES[Index] % FIELDS_OF_A_WORD
                     : 0) |
                ...);
    }

    // `written` is never passed on, so that it stays in a register.
    template <std::size_t... Words>
    static void WriteFields(const Record& record, PropertyTree::Map& target, const WriteFlags* flags, std::size_t others,
                            std::index_sequence<Words...>)
    {
        const std::array<FieldBits, sizeof...(Words)> written{WordOf<Words>(record, flags->omitDefaults)...};
        if ((written[Words] | ...) == 0)
        {
            return;
        }
        std::array<FieldBits, sizeof...(Words)> isNew = written;
        std::array<PropertyTree*, List::SIZE> children;
        WriteTargets targets(SCHEMA, target, others, isNew.data(), children.data());
        // Without the expectation each field would be encoded out of line, with a jump there and back.
        ((IsLikely((written[PLACES[Index] / FIELDS_OF_A_WORD] >> PLACES[Index] % FIELDS_OF_A_WORD & 1) != 0)
              ? (targets.Come(Index), Descriptors::Write(*children[PLACES[Index]], record, flags))
              : void()),
         ...);
        targets.Finish();
    }

    static void Write([[maybe_unused]] const void* subject, [[maybe_unused]] PropertyTree::Map& target,
                      [[maybe_unused]] const WriteFlags* flags, [[maybe_unused]] std::size_t others)
    {
        if constexpr (List::SIZE != 0)
        {
            WriteFields(*static_cast<const Record*>(subject), target, flags, others,
                        std::make_index_sequence<WordsFor(List::SIZE)>());
        }
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

    static inline constinit std::array<std::atomic<const PropertyTreeKey*>, List::SIZE> s_knownKeys{};
    static inline constinit std::atomic<bool> s_areKeysFound = false;

    static constexpr RecordSchema SCHEMA{
        .name = TYPE_NAME<Record>,
        .fields = {FIELDS.data(), List::SIZE},
        .sortedKeys = List::SORTED_KEYS.data(),
        .knownKeys = s_knownKeys.data(),
        .areKeysFound = &s_areKeysFound,
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
