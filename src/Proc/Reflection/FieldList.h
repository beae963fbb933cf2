#ifndef OMBREL_PROC_REFLECTION_FIELD_LIST_H
#define OMBREL_PROC_REFLECTION_FIELD_LIST_H

#include "Proc/Reflection/Codec.h"
#include "Proc/Reflection/SpelledName.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <numeric>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Ombrel::Proc
{

/// A reflected data member; its key is the member's name without the prefix. The member may be inherited, and private where
/// the record says `template <class> friend struct Fields;`.
template <auto Member> struct FieldDescriptor
{
    static constexpr std::string_view KEY = MEMBER_KEY<Member>;

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
    consteval KeyText(const char (&text)[Size]) { std::copy_n(text, Size, value); }

    char value[Size];
};

/// A reflected property, reached through a setter and a getter: member functions of the record, or functions that take it
/// first. The tree sees only what the getter says; the setter runs once per read, after the value is decoded.
template <KeyText Key, auto Setter, auto Getter> struct AccessorDescriptor
{
    static constexpr std::string_view KEY{Key.value, sizeof(Key.value) - 1};

    template <class Record> using Value = std::remove_cvref_t<std::invoke_result_t<decltype(Getter), const Record&>>;

    template <class Record> static void Read(const PropertyTree& child, Record& record, const ReadFlags* flags)
    {
        Value<Record> value{};
        Codec<Value<Record>>::Read(child, value, flags);
        std::invoke(Setter, record, std::move(value));
    }

    template <class Record> static void Write(PropertyTree& child, const Record& record, const WriteFlags* flags)
    {
        Codec<Value<Record>>::Write(child, std::invoke(Getter, record), flags);
    }

    template <class Record> static void Reset(Record& record, const Record& defaults)
    {
        std::invoke(Setter, record, std::invoke(Getter, defaults));
    }

    template <class Record> static bool Equal(const Record& a, const Record& b)
    {
        return std::invoke(Getter, a) == std::invoke(Getter, b);
    }
};

/// The fields of a record in declaration order, each a descriptor.
template <class... Descriptors> struct FieldList
{
    static constexpr std::size_t SIZE = sizeof...(Descriptors);
    static constexpr std::array<std::string_view, SIZE> KEYS{Descriptors::KEY...};

    /// The indices of the fields in the byte order of their keys.
    static constexpr std::array<std::uint16_t, SIZE> KEY_ORDER = []
    {
        std::array<std::uint16_t, SIZE> order{};
        std::iota(order.begin(), order.end(), std::uint16_t{0});
        std::ranges::sort(order, {}, [](std::uint16_t index) { return KEYS[index]; });
        return order;
    }();

    static consteval bool HasKey(std::string_view key) { return std::ranges::find(KEYS, key) != KEYS.end(); }

    static consteval bool HasUniqueKeys()
    {
        return std::ranges::adjacent_find(KEY_ORDER, {}, [](std::uint16_t index) { return KEYS[index]; }) == KEY_ORDER.end();
    }

    static_assert(SIZE <= std::numeric_limits<std::uint16_t>::max());
    static_assert(HasUniqueKeys(), "two fields of one list have the same key");
};

/// Names the fields of a record once: specialised with `using List = FieldList<...>`, in one .cpp per record.
template <class Record> struct Fields;

template <class First, class Second> struct Fields<std::pair<First, Second>>
{
    using Pair = std::pair<First, Second>;
    using List = FieldList<FieldDescriptor<&Pair::first>, FieldDescriptor<&Pair::second>>;
};

template <class First, class Second> inline constexpr std::string_view TYPE_NAME<std::pair<First, Second>> = "pair";

} // namespace Ombrel::Proc

#endif
