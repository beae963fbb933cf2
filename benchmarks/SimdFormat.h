#ifndef OMBREL_BENCHMARKS_SIMD_FORMAT_H
#define OMBREL_BENCHMARKS_SIMD_FORMAT_H

#include "FieldCursor.h"

#include <simdjson.h>

#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

namespace Ombrel::Benchmarks
{

/// What simdjson's two interfaces have in common: their scalars.
template <class Json> struct SimdScalars
{
    static std::string_view TextOf(Json value) { return std::string_view(value.get_string()); }

    template <class Value> static Value Decode(Json value)
    {
        if constexpr (std::same_as<Value, bool>)
        {
            return bool(value.get_bool());
        }
        else if constexpr (std::integral<Value>)
        {
            return static_cast<Value>(std::int64_t(value.get_int64()));
        }
        else
        {
            return double(value.get_double());
        }
    }
};

/// simdjson's DOM, which is only read. It lives in its parser.
struct SimdFormat : SimdScalars<simdjson::dom::element>
{
    using Json = simdjson::dom::element;
    using Element = Json;

    class Document
    {
    public:
        void Parse(const simdjson::padded_string& text) { m_top = m_parser.parse(text); }
        std::string Text() const { return simdjson::minify(m_top); }
        const Json& Top() const { return m_top; }

    private:
        simdjson::dom::parser m_parser;
        Json m_top;
    };

    static std::string_view KeyOf(const simdjson::dom::key_value_pair& entry) { return entry.key; }
    static Json ValueOf(const simdjson::dom::key_value_pair& entry) { return entry.value; }

    static auto CursorOf(Json value)
    {
        const simdjson::dom::object map = value.get_object();
        return MakeCursor<SimdFormat>(map.begin(), map.end());
    }

    static Json ChildOf(Json value, const char* key) { return value[key]; }
    static simdjson::dom::array ElementsOf(Json value) { return value.get_array(); }
    static std::size_t SizeOf(simdjson::dom::array list) { return list.size(); }
};

} // namespace Ombrel::Benchmarks

#endif
