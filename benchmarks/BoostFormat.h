#ifndef OMBREL_BENCHMARKS_BOOST_FORMAT_H
#define OMBREL_BENCHMARKS_BOOST_FORMAT_H

#include "Constant.h"
#include "FieldCursor.h"

#include <boost/json.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace Ombrel::Benchmarks
{

/// Boost.JSON's DOM, which keeps the order in which entries were added.
struct BoostFormat
{
    using Json = boost::json::value;
    using Element = const Json&;
    class List;

    class Map
    {
    public:
        Map(Json& json, std::size_t count) : m_map(&json.emplace_object()) { m_map->reserve(count); }

        template <class Value> void Put(std::string_view key, const Value& value) { m_map->emplace(key, Plain(value)); }
        Map PutMap(std::string_view key, std::size_t count) { return Map(PutNull(key), count); }
        List PutList(std::string_view key, std::size_t count) { return List(PutNull(key), count); }

    private:
        Json& PutNull(std::string_view key) { return m_map->emplace(key, nullptr).first->value(); }

        boost::json::object* m_map;
    };

    class List
    {
    public:
        List(Json& json, std::size_t count) : m_list(&json.emplace_array()) { m_list->reserve(count); }

        template <class Value> void Add(const Value& value) { m_list->emplace_back(Plain(value)); }
        Map AddMap(std::size_t count) { return Map(m_list->emplace_back(nullptr), count); }

    private:
        boost::json::array* m_list;
    };

    static std::string_view KeyOf(const boost::json::key_value_pair& entry) { return entry.key(); }
    static const Json& ValueOf(const boost::json::key_value_pair& entry) { return entry.value(); }

    static auto CursorOf(const Json& value)
    {
        const boost::json::object& map = value.get_object();
        return MakeCursor<BoostFormat>(map.begin(), map.end());
    }

    static const Json& ChildOf(const Json& value, const char* key) { return value.get_object().at(key); }
    static const boost::json::array& ElementsOf(const Json& value) { return value.get_array(); }
    static std::size_t SizeOf(const boost::json::array& list) { return list.size(); }
    static std::string_view TextOf(const Json& value) { return std::string_view(value.get_string()); }

    template <class Value> static Value Decode(const Json& value)
    {
        if constexpr (std::same_as<Value, bool>)
        {
            return value.get_bool();
        }
        else if constexpr (std::integral<Value>)
        {
            return static_cast<Value>(value.get_int64());
        }
        else
        {
            return value.get_double();
        }
    }
};

/// Each part allocates for itself.
struct BoostHeapFormat : BoostFormat
{
    class Document
    {
    public:
        Map MakeMap(std::size_t count) { return Map(m_json, count); }
        List MakeList(std::size_t count) { return List(m_json, count); }
        void Copy(const Document& other) { m_json = other.m_json; }
        void Parse(std::string_view text) { m_json = boost::json::parse(text); }
        std::string Text() const { return boost::json::serialize(m_json); }
        const Json& Top() const { return m_json; }

    private:
        Json m_json;
    };
};

/// Blocks of growing size, which the parts share, hold all.
struct BoostMonotonicFormat : BoostFormat
{
    class Document
    {
    public:
        Map MakeMap(std::size_t count) { return Map(m_json, count); }
        List MakeList(std::size_t count) { return List(m_json, count); }
        void Copy(const Document& other) { m_json = other.m_json; }
        void Parse(std::string_view text) { m_json = boost::json::parse(text, m_json.storage()); }
        std::string Text() const { return boost::json::serialize(m_json); }
        const Json& Top() const { return m_json; }

    private:
        Json m_json = Json(boost::json::make_shared_resource<boost::json::monotonic_resource>());
    };
};

} // namespace Ombrel::Benchmarks

#endif
