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

    template <class Record> using Value = std::remove_cvref_t<std::invoke_result_t<decltype(Getter), const Record&>>;

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

/// The fields of a record in declaration order, each a descriptor.
template <class... Descriptors> struct FieldList
{
    static constexpr std::size_t SIZE = sizeof...(Descriptors);
    static constexpr std::array<std::string_view, SIZE> KEYS{Descriptors::KEY...};

    /// The fields in the byte order of their keys. The algorithms of the standard library are not used here: the compiler would
    /// take longer for them than for the rest of a record.
    static constexpr std::array<SortedKey, SIZE> SORTED_KEYS = []
    {
        std::array<std::uint16_t, SIZE> order{};
        for (std::size_t index = 0; index != SIZE; ++index)
        {
            std::size_t place = index;
            for (; place != 0 && KEYS[index] < KEYS[order[place - 1]]; --place)
            {
                order[place] = order[place - 1];
            }
            order[place] = static_cast<std::uint16_t>(index);
        }
        std::array<SortedKey, SIZE> keys;
        for (std::size_t place = 0; place != SIZE; ++place)
        {
            keys[place] = SortedKey(KEYS[order[place]], order[place]);
        }
        return keys;
    }();

    static consteval bool HasKey([[maybe_unused]] std::string_view key) { return ((Descriptors::KEY == key) || ...); }

    static consteval bool HasUniqueKeys()
    {
        for (std::size_t place = 1; place < SIZE; ++place)
        {
            if (KEYS[SORTED_KEYS[place - 1].index] == KEYS[SORTED_KEYS[place].index])
            {
                return false;
            }
        }
        return true;
    }

    static_assert(SIZE <= std::numeric_limits<std::uint16_t>::max());
    static_assert(HasUniqueKeys(), "two fields of one list have the same key");
};

template <class First, class Second> struct Fields<std::pair<First, Second>>
{
    using Pair = std::pair<First, Second>;
    using List = FieldList<FieldDescriptor<&Pair::first>, FieldDescriptor<&Pair::second>>;
};

template <class First, class Second> inline constexpr std::string_view TYPE_NAME<std::pair<First, Second>> = "pair";

} // namespace Ombrel::Proc

#endif
