#ifndef OMBREL_BENCHMARKS_RAPID_FORMAT_H
#define OMBREL_BENCHMARKS_RAPID_FORMAT_H

#include "Constant.h"
#include "FieldCursor.h"

#define RAPIDJSON_SSE2 // every processor of 64 bits has it
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <concepts>
#include <cstddef>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Ombrel::Benchmarks
{

/// RapidJSON's DOM with its memory pool. It refers to the keys and to constants and copies other texts. Its maps have no
/// `reserve`.
struct RapidFormat
{
    // The memory of the pool comes from where the program counts it.
    struct PoolMemory
    {
        static constexpr bool kNeedFree = true;
        void* Malloc(std::size_t size) { return size == 0 ? nullptr : ::operator new(size); }
        static void Free(void* memory) { ::operator delete(memory); }
    };

    static inline PoolMemory POOL_MEMORY;

    using Pool = rapidjson::MemoryPoolAllocator<PoolMemory>;
    using Json = rapidjson::GenericValue<rapidjson::UTF8<>, Pool>;
    using Element = const Json&;
    class List;

    class Map
    {
    public:
        Map(Json& json, Pool& pool) : m_map(&json.SetObject()), m_pool(&pool) {}

        template <class Value> void Put(std::string_view key, const Value& value)
        {
            m_map->AddMember(Json(Reference(key)), ValueOf(value, *m_pool), *m_pool);
        }

        Map PutMap(std::string_view key, std::size_t) { return Map(PutNull(key), *m_pool); }
        List PutList(std::string_view key, std::size_t count) { return List(PutNull(key), count, *m_pool); }

    private:
        Json& PutNull(std::string_view key)
        {
            m_map->AddMember(Json(Reference(key)), Json(), *m_pool);
            return (m_map->MemberEnd() - 1)->value;
        }

        Json* m_map;
        Pool* m_pool;
    };

    class List
    {
    public:
        List(Json& json, std::size_t count, Pool& pool) : m_list(&json.SetArray()), m_pool(&pool)
        {
            m_list->Reserve(static_cast<rapidjson::SizeType>(count), pool);
        }

        template <class Value> void Add(const Value& value) { m_list->PushBack(ValueOf(value, *m_pool), *m_pool); }

        Map AddMap(std::size_t)
        {
            m_list->PushBack(Json(), *m_pool);
            return Map(*(m_list->End() - 1), *m_pool);
        }

    private:
        Json* m_list;
        Pool* m_pool;
    };

    class Document
    {
    public:
        Map MakeMap(std::size_t) { return Map(m_json, MakePool(SMALL)); }
        List MakeList(std::size_t count) { return List(m_json, count, MakePool(LARGE)); }
        void Copy(const Document& other)
        {
            m_json.CopyFrom(other.m_json, MakePool(other.m_pool->Size() < SMALL ? SMALL : LARGE));
        }

        /// Exact and checked, as the others parse. Texts stay where they are.
        void Parse(std::string_view text)
        {
            using namespace rapidjson;
            m_text = text;
            GenericDocument<UTF8<>, Pool> document(&MakePool(LARGE));
            document.ParseInsitu<kParseFullPrecisionFlag | kParseValidateEncodingFlag>(m_text.data());
            if (document.HasParseError())
            {
                throw std::invalid_argument("RapidJSON does not read the text");
            }
            m_json = static_cast<Json&>(document);
        }

        std::string Text() const
        {
            rapidjson::StringBuffer buffer;
            rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
            m_json.Accept(writer);
            return {buffer.GetString(), buffer.GetSize()};
        }

        const Json& Top() const { return m_json; }

    private:
        // Of the memory that the pool takes at once: enough for a record, or RapidJSON's own choice.
        static constexpr std::size_t SMALL = 4096;
        static constexpr std::size_t LARGE = std::size_t{64} * 1024;

        Pool& MakePool(std::size_t chunk) { return m_pool.emplace(chunk, &POOL_MEMORY); }

        std::optional<Pool> m_pool;
        std::string m_text;
        Json m_json;
    };

    static std::string_view KeyOf(const Json::Member& entry) { return {entry.name.GetString(), entry.name.GetStringLength()}; }

    static const Json& ValueOf(const Json::Member& entry) { return entry.value; }
    static auto CursorOf(const Json& value) { return MakeCursor<RapidFormat>(value.MemberBegin(), value.MemberEnd()); }
    static const Json& ChildOf(const Json& value, const char* key) { return value[key]; }
    static auto ElementsOf(const Json& value) { return value.GetArray(); }
    static std::size_t SizeOf(const Json::ConstArray& list) { return list.Size(); }
    static std::string_view TextOf(const Json& value) { return {value.GetString(), value.GetStringLength()}; }
    template <class Value> static Value Decode(const Json& value) { return value.Get<Value>(); }

private:
    static Json::StringRefType Reference(std::string_view text)
    {
        return {text.data(), static_cast<rapidjson::SizeType>(text.size())};
    }

    template <class Value> static Json ValueOf(const Value& value, Pool& pool)
    {
        if constexpr (std::same_as<Value, Constant>)
        {
            return Json(Reference(value.text));
        }
        else if constexpr (std::convertible_to<Value, std::string_view>)
        {
            return Json(Reference(value), pool);
        }
        else
        {
            return Json(value);
        }
    }
};

} // namespace Ombrel::Benchmarks

#endif
