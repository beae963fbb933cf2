#ifndef OMBREL_PROC_REFLECTION_CODEC_H
#define OMBREL_PROC_REFLECTION_CODEC_H

#include "OmbrelExport.h"
#include "Proc/Reflection/Context.h"
#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <concepts>
#include <cstdint>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Ombrel::Proc
{

/// How a value of one kind stands in a tree:
///
///     static void Write(PropertyTree& child, const Value& value, const WriteFlags* flags);
///     static void Read(const PropertyTree& child, Value& value, const ReadFlags* flags);
///     static constexpr ValueSchema SCHEMA; // optional
///
/// `Read` decodes `child` into `value`, which still has the old value of the field. Exceptions of the tree pass through. A
/// further kind of value is a further specialisation, which may be defined beside the type. A type without a specialisation is
/// a record.
template <class Value> struct Codec;

/// How a value describes itself.
template <class Value>
inline constexpr const ValueSchema& SCHEMA_OF = []() -> const ValueSchema&
{
    if constexpr (requires { Codec<Value>::SCHEMA; })
    {
        return Codec<Value>::SCHEMA;
    }
    else
    {
        return OTHER_VALUE;
    }
}();

// One routine for each plain kind, whatever the field's type is, so that a record needs little code of its own.
OMBREL_API void WriteInteger(PropertyTree& child, std::int64_t value);
OMBREL_API void WriteFloat(PropertyTree& child, double value);
OMBREL_API void WriteBool(PropertyTree& child, bool value);
OMBREL_API void WriteString(PropertyTree& child, const std::string& value);
OMBREL_API void WriteEnum(PropertyTree& child, std::int32_t value, const EnumNameTable& table);

OMBREL_API std::int64_t ReadInteger(const PropertyTree& child);
OMBREL_API double ReadFloat(const PropertyTree& child);
OMBREL_API void ReadBool(const PropertyTree& child, bool& value);
OMBREL_API void ReadString(const PropertyTree& child, std::string& value);
OMBREL_API std::int32_t ReadEnum(const PropertyTree& child, const EnumNameTable& table);

/// Replaces `child` by a list of `size` null trees and returns the list.
OMBREL_API PropertyTree::List& WriteList(PropertyTree& child, std::size_t size);

/// The integer kinds: widened to 64 bits on the way out, cut to the low bits on the way in, without a range test.
template <class Value>
concept StoredInteger = std::same_as<Value, std::int32_t> || std::same_as<Value, std::uint32_t> ||
    std::same_as<Value, std::uint8_t> || std::same_as<Value, std::int64_t> || std::same_as<Value, std::uint64_t>;

template <StoredInteger Value> struct Codec<Value>
{
    static constexpr ValueSchema SCHEMA{std::same_as<Value, std::int32_t>    ? ValueKind::Int32
                                        : std::same_as<Value, std::uint32_t> ? ValueKind::UInt32
                                        : std::same_as<Value, std::uint8_t>  ? ValueKind::UInt8
                                        : std::same_as<Value, std::int64_t>  ? ValueKind::Int64
                                                                             : ValueKind::UInt64};

    static void Write(PropertyTree& child, Value value, const WriteFlags*)
    {
        WriteInteger(child, static_cast<std::int64_t>(value));
    }

    static void Read(const PropertyTree& child, Value& value, const ReadFlags*)
    {
        value = static_cast<Value>(ReadInteger(child));
    }
};

/// float64, and float32 widened and narrowed: a value beyond the range of float32 becomes an infinity.
template <std::floating_point Value> struct Codec<Value>
{
    static constexpr ValueSchema SCHEMA{std::same_as<Value, float> ? ValueKind::Float32 : ValueKind::Float64};

    static void Write(PropertyTree& child, Value value, const WriteFlags*) { WriteFloat(child, value); }

    static void Read(const PropertyTree& child, Value& value, const ReadFlags*)
    {
        value = static_cast<Value>(ReadFloat(child));
    }
};

template <> struct Codec<bool>
{
    static constexpr ValueSchema SCHEMA{ValueKind::Bool};

    static void Write(PropertyTree& child, bool value, const WriteFlags*) { WriteBool(child, value); }
    static void Read(const PropertyTree& child, bool& value, const ReadFlags*) { ReadBool(child, value); }
};

template <> struct Codec<std::string>
{
    static constexpr ValueSchema SCHEMA{ValueKind::String};

    static void Write(PropertyTree& child, const std::string& value, const WriteFlags*) { WriteString(child, value); }
    static void Read(const PropertyTree& child, std::string& value, const ReadFlags*) { ReadString(child, value); }
};

/// By name. A value without a name is written as "", and an unknown name or a child that is no scalar is the fallback.
template <class Value>
requires std::is_enum_v<Value>
struct Codec<Value>
{
    static_assert(std::same_as<std::underlying_type_t<Value>, std::int32_t>, "a stored enumeration has 32 bits");

    static constexpr ValueSchema SCHEMA{.kind = ValueKind::Enum, .names = &EnumNames<Value>::TABLE};

    static void Write(PropertyTree& child, Value value, const WriteFlags*)
    {
        WriteEnum(child, static_cast<std::int32_t>(value), EnumNames<Value>::TABLE);
    }

    static void Read(const PropertyTree& child, Value& value, const ReadFlags*)
    {
        value = static_cast<Value>(ReadEnum(child, EnumNames<Value>::TABLE));
    }
};

/// What lists and sets have in common. Reads the elements in order into the emptied field. A child that is no list leaves the
/// field as it is.
template <class Values, ValueKind KIND> struct SequenceCodec
{
    using Element = typename Values::value_type;

    static constexpr ValueSchema SCHEMA{.kind = KIND, .element = &SCHEMA_OF<Element>};

    static void Write(PropertyTree& child, const Values& values, const WriteFlags* flags)
    {
        auto target = WriteList(child, values.size()).begin();
        for (const Element& element : values)
        {
            Codec<Element>::Write(*target++, element, flags);
        }
    }

    static void Read(const PropertyTree& child, Values& values, const ReadFlags* flags)
    {
        if (!child.isList())
        {
            return;
        }
        values.clear();
        if constexpr (KIND == ValueKind::List)
        {
            values.reserve(child.getList().size());
        }
        for (const PropertyTree& source : child.getList())
        {
            Element element{};
            Codec<Element>::Read(source, element, flags);
            if constexpr (KIND == ValueKind::List)
            {
                values.push_back(std::move(element));
            }
            else
            {
                values.insert(values.end(), std::move(element)); // where it belongs if the list is in order, as it is written
            }
        }
    }
};

template <class Element> struct Codec<std::vector<Element>> : SequenceCodec<std::vector<Element>, ValueKind::List>
{
};

/// A list in ascending order. Reading ignores repeated elements.
template <class Element> struct Codec<std::set<Element>> : SequenceCodec<std::set<Element>, ValueKind::Set>
{
};

} // namespace Ombrel::Proc

#endif
