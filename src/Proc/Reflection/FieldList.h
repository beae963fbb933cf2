#ifndef OMBREL_PROC_REFLECTION_FIELD_LIST_H
#define OMBREL_PROC_REFLECTION_FIELD_LIST_H

#include "Proc/Reflection/Codec.h"
#include "Proc/Reflection/Reflected.h"
#include "Proc/Reflection/SpelledName.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Ombrel::Proc
{

/// A reflected data member; its key is the member's name without the prefix. The member may be inherited, and private where
/// the list stands in a member function of the record.
template <auto Member> struct FieldDescriptor
{
    static constexpr std::string_view KEY = MEMBER_KEY<Member>;
    static constexpr std::string_view ACCESS = MEMBER_NAME<Member>;

    template <class Record> using Value = std::remove_cvref_t<decltype(std::declval<Record&>().*Member)>;

    template <class Record> static void Read(const PropertyTree& child, Record& record, const ReadFlags* flags)
    {
        Codec<Value<Record>>::Read(child, record.*Member, flags);
    }

    template <class Record> static void Write(PropertyTree& child, const Record& record, const WriteFlags* flags)
    {
        Codec<Value<Record>>::Write(child, record.*Member, flags);
    }

    template <class Record> static void Reset(Record& record, const Record& defaults) { record.*Member = defaults.*Member; }

    template <class Record> static bool Equal(const Record& a, const Record& b) { return a.*Member == b.*Member; }
};

/// A text as a template argument.
template <std::size_t Size> struct KeyText
{
    consteval KeyText(const char (&text)[Size])
    {
        for (std::size_t i = 0; i != Size; ++i)
        {
            value[i] = text[i];
        }
    }

    char value[Size];
};

/// Calls a member function of the record, or a function that takes the record first. `std::invoke` does the same, but its
/// header takes half of the time in which a record's file compiles.
template <class Function, class Record, class... Arguments>
constexpr decltype(auto) Invoke(Function function, Record& record, Arguments&&... arguments)
{
    if constexpr (std::is_member_function_pointer_v<Function>)
    {
        return (record.*function)(std::forward<Arguments>(arguments)...);
    }
    else
    {
        return function(record, std::forward<Arguments>(arguments)...);
    }
}

/// A reflected property, reached through a setter and a getter: member functions of the record, or functions that take it
/// first. What the getter returns is stored. A read calls the setter once, with the decoded value.
template <KeyText Key, auto Setter, auto Getter> struct AccessorDescriptor
{
    static constexpr std::string_view KEY{Key.value, sizeof(Key.value) - 1};
    static constexpr std::string_view ACCESS = []
    {
        if constexpr (std::is_member_function_pointer_v<decltype(Setter)>)
        {
            return ACCESSOR_NAMES<Setter, Getter>;
        }
        else
        {
            return MEMBER_NAME<Getter>; // a function of the list is no setter for callers
        }
    }();

    template <class Record> using Value = std::remove_cvref_t<decltype(Invoke(Getter, std::declval<const Record&>()))>;

    template <class Record> static void Read(const PropertyTree& child, Record& record, const ReadFlags* flags)
    {
        Value<Record> value{};
        Codec<Value<Record>>::Read(child, value, flags);
        Invoke(Setter, record, std::move(value));
    }

    template <class Record> static void Write(PropertyTree& child, const Record& record, const WriteFlags* flags)
    {
        Codec<Value<Record>>::Write(child, Invoke(Getter, record), flags);
    }

    template <class Record> static void Reset(Record& record, const Record& defaults)
    {
        Invoke(Setter, record, Invoke(Getter, defaults));
    }

    template <class Record> static bool Equal(const Record& a, const Record& b)
    {
        return Invoke(Getter, a) == Invoke(Getter, b);
    }
};

namespace FieldListDetail
{

// Sorting is no template and compares heads, because the compiler runs it for each record. For the algorithms of the standard
// library it would take longer than for the rest of a record.
constexpr void SortKeys(const std::string_view* keys, std::size_t size, SortedKey* sorted)
{
    for (std::size_t index = 0; index != size; ++index)
    {
        const SortedKey key(keys[index], index);
        std::size_t place = index;
        for (; place != 0; --place)
        {
            const SortedKey& before = sorted[place - 1];
            if (before.head < key.head || (before.head == key.head && keys[before.index] <= keys[index]))
            {
                break;
            }
            sorted[place] = before;
        }
        sorted[place] = key;
    }
}

consteval bool AreUnique(const std::string_view* keys, std::size_t size, const SortedKey* sorted)
{
    for (std::size_t place = 1; place < size; ++place)
    {
        const SortedKey& key = sorted[place];
        const SortedKey& before = sorted[place - 1];
        if (key.head == before.head && keys[key.index] == keys[before.index])
        {
            return false;
        }
    }
    return true;
}

} // namespace FieldListDetail

/// The fields of a record in declaration order, each a descriptor.
template <class... Descriptors> struct FieldList
{
    static constexpr std::size_t SIZE = sizeof...(Descriptors);
    static constexpr std::array<std::string_view, SIZE> KEYS{Descriptors::KEY...};

    /// The fields in the byte order of their keys.
    static constexpr std::array<SortedKey, SIZE> SORTED_KEYS = []
    {
        std::array<SortedKey, SIZE> sorted;
        FieldListDetail::SortKeys(KEYS.data(), SIZE, sorted.data());
        return sorted;
    }();

    static consteval bool HasKey([[maybe_unused]] std::string_view key) { return ((Descriptors::KEY == key) || ...); }

    static_assert(SIZE <= std::numeric_limits<std::uint16_t>::max());
    static_assert(FieldListDetail::AreUnique(KEYS.data(), SIZE, SORTED_KEYS.data()),
                  "two fields of one list have the same key");
};

template <class First, class Second> struct Fields<std::pair<First, Second>>
{
    using Pair = std::pair<First, Second>;
    using List = FieldList<FieldDescriptor<&Pair::first>, FieldDescriptor<&Pair::second>>;
};

template <class First, class Second> inline constexpr std::string_view TYPE_NAME<std::pair<First, Second>> = "pair";

} // namespace Ombrel::Proc

#endif
