#ifndef OMBREL_BENCHMARKS_NLOHMANN_FORMAT_H
#define OMBREL_BENCHMARKS_NLOHMANN_FORMAT_H

#include "Constant.h"
#include "FieldCursor.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace Ombrel::Benchmarks
{

/// nlohmann's DOM. Its map is sorted, so an entry is made without a search at its end.
struct NlohmannFormat
{
    using Json = nlohmann::json;
    using Element = const Json&;
    class List;

    class Map
    {
    public:
        explicit Map(Json& json) : m_map(&(json = Json::object()).get_ref<Json::object_t&>()) {}

        template <class Value> void Put(std::string_view key, const Value& value)
        {
            m_map->emplace_hint(m_map->end(), key, Plain(value));
        }

        Map PutMap(std::string_view key, std::size_t) { return Map(PutNull(key)); }
        List PutList(std::string_view key, std::size_t count) { return List(PutNull(key), count); }

    private:
        Json& PutNull(std::string_view key) { return m_map->emplace_hint(m_map->end(), key, nullptr)->second; }

        Json::object_t* m_map;
    };

    class List
    {
    public:
        List(Json& json, std::size_t count) : m_list(&(json = Json::array()).get_ref<Json::array_t&>())
        {
            m_list->reserve(count);
        }

        template <class Value> void Add(const Value& value) { m_list->emplace_back(Plain(value)); }
        Map AddMap(std::size_t) { return Map(m_list->emplace_back()); }

    private:
        Json::array_t* m_list;
    };

    /// With the functions of every document: written as a map or a list, copied, made from a text and written as one.
    struct Document
    {
        Map MakeMap(std::size_t) { return Map(json); }
        List MakeList(std::size_t count) { return List(json, count); }
        void Copy(const Document& other) { json = other.json; }
        void Parse(std::string_view text) { json = Json::parse(text); }
        std::string Text() const { return json.dump(); }
        const Json& Top() const { return json; }

        Json json;
    };

    static std::string_view KeyOf(const Json::object_t::value_type& entry) { return entry.first; }
    static const Json& ValueOf(const Json::object_t::value_type& entry) { return entry.second; }

    static auto CursorOf(const Json& value)
    {
        const auto& map = value.get_ref<const Json::object_t&>();
        return MakeCursor<NlohmannFormat>(map.begin(), map.end());
    }

    static const Json& ChildOf(const Json& value, const char* key) { return value.at(key); }
    static const Json::array_t& ElementsOf(const Json& value) { return value.get_ref<const Json::array_t&>(); }
    static std::size_t SizeOf(const Json::array_t& list) { return list.size(); }
    static std::string_view TextOf(const Json& value) { return value.get_ref<const std::string&>(); }
    template <class Value> static Value Decode(const Json& value) { return value.get<Value>(); }
};

} // namespace Ombrel::Benchmarks

#endif
