#include "OnDemand.h"

#include "PeerEffects.h"
#include "SimdFormat.h"

namespace Ombrel::Benchmarks
{

/// A map or a list can be read only once, and in order.
struct OnDemandFormat : SimdScalars<simdjson::ondemand::value>
{
    using Json = simdjson::ondemand::value;
    using Element = Json;

    // As FieldCursor, but an entry can be looked at only once.
    class Cursor
    {
    public:
        using Format = OnDemandFormat;

        explicit Cursor(simdjson::ondemand::object map) : m_map(map), m_next(m_map.begin()), m_end(m_map.end()) { Load(); }

        template <class Read> bool Find(std::string_view key, const Read& read)
        {
            for (; m_isThere; Step())
            {
                if (m_key == key)
                {
                    read(m_value);
                    Step();
                    return true;
                }
                if (m_key > key)
                {
                    return false;
                }
            }
            return false;
        }

    private:
        void Load()
        {
            m_isThere = m_next != m_end;
            if (m_isThere)
            {
                simdjson::ondemand::field field = *m_next;
                m_key = std::string_view(field.unescaped_key());
                m_value = field.value();
            }
        }

        void Step()
        {
            ++m_next;
            Load();
        }

        simdjson::ondemand::object m_map;
        simdjson::ondemand::object_iterator m_next;
        simdjson::ondemand::object_iterator m_end;
        bool m_isThere = false;
        std::string_view m_key;
        Json m_value;
    };

    static Cursor CursorOf(simdjson::ondemand::object map) { return Cursor(map); }
    static Cursor CursorOf(Json value) { return Cursor(value.get_object()); }

    /// Goes back to the beginning of the map, which can then be read in order.
    static Json ChildOf(simdjson::ondemand::object& map, const char* key)
    {
        Json child = map[key];
        map.reset();
        return child;
    }

    static simdjson::ondemand::array ElementsOf(Json value) { return value.get_array(); }
};

struct OnDemandReader::Parser
{
    simdjson::ondemand::parser parser;
};

bool OnDemandReader::CanRun()
{
#ifdef __AVX2__
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi");
#else
    return true;
#endif
}

OnDemandReader::OnDemandReader() : m_parser(std::make_unique<Parser>()) {}
OnDemandReader::~OnDemandReader() = default;

HandWrittenEffect::List OnDemandReader::Read(const simdjson::padded_string& text)
{
    HandWrittenEffect::List effects;
    simdjson::ondemand::document document = m_parser->parser.iterate(text);
    for (simdjson::ondemand::object element : document.get_array())
    {
        effects.push_back(ReadPeerEffect<OnDemandFormat>(element));
    }
    return effects;
}

} // namespace Ombrel::Benchmarks
