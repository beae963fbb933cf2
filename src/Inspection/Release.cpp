#include "Inspection/Release.h"

#include "Inspection/ReleaseModel.h"
#include "Inspection/Values.h"
#include "Proc/Settings/RgbaColorCodec.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

using Proc::ValueKind;
using Proc::ValueSchema;

constexpr int MOST_LISTS = 16; // in each other; no class has as many

enum class AnyNumber : std::int32_t // of any enumeration
{
};

// Reads a manifest into a model.
class ManifestReader
{
public:
    ManifestReader(const PropertyTree& manifest, Release::Model& model) : m_manifest(manifest), m_model(model) {}

    void Run()
    {
        m_model.name = TextIn(m_manifest, "release");
        const PropertyTree& records = Required(m_manifest, "records");
        if (!records.isMap())
        {
            ThrowNoManifest("\"records\" is no map");
        }
        for (const auto& [name, fields] : records.getMap())
        {
            m_model.records[std::string(name)]; // first, since they may refer to each other
        }
        for (auto& [name, record] : m_model.records)
        {
            ReadFields(ListIn(records, name), record);
        }
        for (const PropertyTree& given : ListIn(m_manifest, "classes"))
        {
            ReleaseClass& read = m_model.classes[TextIn(given, "id")];
            read.isRegistered = IsSet(given, "registered");
            ReadFields(ListIn(given, "keys"), read.keys);
        }
    }

private:
    [[noreturn]] static void ThrowNoManifest(const std::string& why)
    {
        throw std::invalid_argument("no manifest of a release: " + why);
    }

    static const PropertyTree* MemberOf(const PropertyTree& map, std::string_view key)
    {
        const auto found = map.isMap() ? map.getMap().find(key) : PropertyTree::Map::const_iterator();
        return map.isMap() && found != map.getMap().end() ? &found->second : nullptr;
    }

    static const PropertyTree& Required(const PropertyTree& map, std::string_view key)
    {
        const PropertyTree* member = MemberOf(map, key);
        if (!member)
        {
            ThrowNoManifest("\"" + std::string(key) + "\" is missing");
        }
        return *member;
    }

    static const std::string& TextIn(const PropertyTree& map, std::string_view key)
    {
        const PropertyTree& member = Required(map, key);
        if (!IsText(member))
        {
            ThrowNoManifest("\"" + std::string(key) + "\" is no text");
        }
        return member.getScalar().toString();
    }

    static const PropertyTree::List& ListIn(const PropertyTree& map, std::string_view key)
    {
        const PropertyTree& member = Required(map, key);
        if (!member.isList())
        {
            ThrowNoManifest("\"" + std::string(key) + "\" is no list");
        }
        return member.getList();
    }

    static std::int32_t NumberIn(const PropertyTree& map, std::string_view key)
    {
        const PropertyTree& member = Required(map, key);
        if (!IsNumber(member))
        {
            ThrowNoManifest("\"" + std::string(key) + "\" is no number");
        }
        return static_cast<std::int32_t>(CutTo(ValueKind::Int32, IntegerOf(member).value_or(0)));
    }

    static bool IsSet(const PropertyTree& map, std::string_view key)
    {
        const PropertyTree* member = MemberOf(map, key);
        return member && *member == PropertyTree(true);
    }

    void ReadFields(const PropertyTree::List& fields, ReleaseRecord& record)
    {
        for (const PropertyTree& field : fields)
        {
            record.fields.push_back({TextIn(field, "key"), ReadValue(field, 0), Required(field, "default")});
        }
    }

    // `depth` is in how many lists the value stands.
    ReleaseValue ReadValue(const PropertyTree& given, int depth)
    {
        if (depth > MOST_LISTS)
        {
            ThrowNoManifest("too many lists stand in each other");
        }
        const auto kind = std::ranges::find(KIND_TEXTS, TextIn(given, "kind"));
        if (kind == KIND_TEXTS.end())
        {
            ThrowNoManifest("\"" + TextIn(given, "kind") + "\" is no kind");
        }
        ReleaseValue value;
        value.schema.kind = static_cast<ValueKind>(kind - KIND_TEXTS.begin());
        switch (value.schema.kind)
        {
        case ValueKind::Enum:
            value.schema.takesNumbers = IsSet(given, "takesNumbers");
            value.schema.names = &ReadNames(given);
            break;
        case ValueKind::Record:
            value.record = &RecordNamed(TextIn(given, "record"));
            break;
        case ValueKind::ColorMap:
            value.schema.element = &Proc::SCHEMA_OF<Proc::StoredColor>;
            break;
        case ValueKind::List:
        case ValueKind::Set:
            value.element = &m_model.elements.emplace_back(ReadValue(Required(given, "element"), depth + 1));
            value.schema.element = &value.element->schema;
            break;
        default:
            break;
        }
        return value;
    }

    const Proc::EnumNameTable& ReadNames(const PropertyTree& given)
    {
        std::vector<Proc::EnumNameRow>& rows = m_model.rows.emplace_back();
        for (const PropertyTree& row : ListIn(given, "names"))
        {
            rows.emplace_back(m_model.names.emplace_back(TextIn(row, "name")), AnyNumber{NumberIn(row, "number")});
        }
        return m_model.tables.emplace_back(Proc::EnumNameTable{.rows = rows, .fallback = NumberIn(given, "fallback")});
    }

    const ReleaseRecord& RecordNamed(const std::string& name) const
    {
        const auto found = m_model.records.find(name);
        if (found == m_model.records.end())
        {
            ThrowNoManifest("there is no record \"" + name + "\"");
        }
        return found->second;
    }

    const PropertyTree& m_manifest;
    Release::Model& m_model;
};

std::unique_ptr<const Release::Model> ModelOf(const PropertyTree& manifest)
{
    auto model = std::make_unique<Release::Model>();
    ManifestReader(manifest, *model).Run();
    return model;
}

} // namespace

bool ReleaseValue::IsSimple() const noexcept
{
    const ReleaseValue* value = this;
    while (value->element)
    {
        value = value->element;
    }
    return value->schema.kind != ValueKind::Record && value->schema.kind != ValueKind::Effect;
}

const ReleaseField* ReleaseRecord::Find(std::string_view key) const noexcept
{
    const auto found = std::ranges::find(fields, key, &ReleaseField::key);
    return found == fields.end() ? nullptr : &*found;
}

Release::Release(const PropertyTree& manifest) : m_model(ModelOf(manifest)) {}
Release::~Release() = default;

const std::string& Release::Name() const noexcept
{
    return m_model->name;
}

CheckOptions ForRelease(std::string_view name)
{
    CheckOptions options;
    options.release = ReadRelease(name);
    return options;
}

} // namespace Ombrel::Inspection
