#include "Inspection/Trials.h"

#include "Inspection/Attempt.h"
#include "Inspection/Values.h"
#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Settings/StoredKeys.h"

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

using Proc::FieldSchema;
using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;
using Probes = std::vector<PropertyTree>;

constexpr Proc::ReadFlags TRIED{.resetMissing = true};
constexpr std::size_t WHOLE_RECORDS = 3; // how many are tried with all fields changed

// Small and large ones, and angles beyond a turn. Some of each sign, and none that is the default of many fields.
Probes IntegersUpTo(std::int64_t least, std::int64_t most)
{
    Probes probes;
    for (const std::int64_t value :
         {std::int64_t{1}, std::int64_t{10}, std::int64_t{77}, std::int64_t{540}, std::int64_t{-3}, std::int64_t{-540}, most})
    {
        if (least <= value && value <= most)
        {
            probes.emplace_back(value);
        }
    }
    return probes;
}

// Each name that is written again. A set of them is written by the order of their numbers.
Probes NamesOf(const Proc::EnumNameTable& table)
{
    Probes probes;
    for (const Proc::EnumNameRow& row : table.rows)
    {
        if (table.NameOf(row.value) == row.name)
        {
            probes.emplace_back(std::string(row.name));
        }
    }
    return probes;
}

PropertyTree EffectOf(const PhotoCore::EffectClass& effectClass)
{
    PropertyTree tree;
    tree[std::string(Proc::StoredKeys::NAME)] = std::string(effectClass.classId);
    return tree;
}

PropertyTree ColourAt(std::int64_t key)
{
    PropertyTree tree;
    tree["key"] = key;
    tree["value"] = "80402010";
    return tree;
}

PropertyTree ListOf(PropertyTree element)
{
    PropertyTree list;
    list.append(std::move(element));
    return list;
}

// The records that a value stands in, up to the first.
struct Around
{
    const RecordSchema* record;
    const Around* outer;

    static bool Has(const Around* around, const RecordSchema& record)
    {
        for (; around; around = around->outer)
        {
            if (around->record == &record)
            {
                return true;
            }
        }
        return false;
    }
};

Probes ProbesOf(const ValueSchema& schema, const Around* around);

// Records with all fields changed, and with one: a caller's setter may refuse another. One that holds itself is empty in
// itself.
Probes RecordsOf(const RecordSchema& record, const Around* around)
{
    PropertyTree empty;
    empty.makeMap();
    Probes probes{empty};
    if (Around::Has(around, record))
    {
        return probes;
    }
    const Around within{&record, around};
    probes.resize(1 + WHOLE_RECORDS, empty);
    for (const FieldSchema& field : record.fields)
    {
        const Probes values = ProbesOf(*field.value, &within);
        for (std::size_t number = 0; number != WHOLE_RECORDS && !values.empty(); ++number)
        {
            probes[1 + number][field.key] = values[number % values.size()];
        }
        if (!around && !values.empty())
        {
            probes.emplace_back()[field.key] = values.back();
        }
    }
    return probes;
}

Probes ListsOf(const ValueSchema& element, const Around* around)
{
    PropertyTree empty;
    empty.makeList();
    Probes probes{empty};
    for (PropertyTree& value : ProbesOf(element, around))
    {
        probes.push_back(ListOf(std::move(value)));
    }
    return probes;
}

Probes ProbesOf(const ValueSchema& schema, const Around* around)
{
    switch (schema.kind)
    {
    case ValueKind::Int32:
        return IntegersUpTo(std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
    case ValueKind::UInt32:
        return IntegersUpTo(0, std::numeric_limits<std::uint32_t>::max());
    case ValueKind::UInt8:
        return IntegersUpTo(0, std::numeric_limits<std::uint8_t>::max());
    case ValueKind::Int64:
    case ValueKind::UInt64:
        return IntegersUpTo(std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max());
    case ValueKind::Float64:
    case ValueKind::Float32:
        return {0.5, 2.0, 540.0, -3.0, -540.0, 1e6};
    case ValueKind::Bool:
        return {true, false};
    case ValueKind::String:
        return {"x", "another text"};
    case ValueKind::Enum:
        return NamesOf(*schema.names);
    case ValueKind::Color:
        return {"80402010", "ff0000ff"};
    case ValueKind::ColorMap:
        return {ListOf(ColourAt(0)), ListOf(ColourAt(200))};
    case ValueKind::Record:
        return RecordsOf(schema.record(), around);
    case ValueKind::List:
    case ValueKind::Set:
        return ListsOf(*schema.element, around);
    case ValueKind::Effect:
        return {PropertyTree(), EffectOf(PhotoCore::EffectClasses().front())};
    case ValueKind::Other:
        return {1, 2.5, "x", true};
    }
    return {};
}

// Whether all of the value stands where it is written, with nothing that is filled in.
bool IsWhole(const ValueSchema& schema)
{
    return schema.kind <= ValueKind::ColorMap ||
           ((schema.kind == ValueKind::List || schema.kind == ValueKind::Set) && IsWhole(*schema.element));
}

// The value of the first step, which is a key.
PropertyTree Wrapped(PropertyTree value, const RecordPlace& place)
{
    for (std::size_t left = place.way.size(); left-- > 1;)
    {
        PropertyTree around;
        if (place.way[left].isElement)
        {
            around = ListOf(std::move(value));
        }
        else
        {
            around[place.way[left].key] = std::move(value);
        }
        value = std::move(around);
    }
    return value;
}

// The map of the record in the effect's map. A caller's class may write something else.
const PropertyTree::Map& RecordIn(const PropertyTree& written, const RecordPlace& place)
{
    const PropertyTree* value = &written;
    for (const WayStep& step : place.way)
    {
        value = step.isElement ? &value->getList().at(0) : &value->getMap().at(step.key);
    }
    return value->getMap();
}

} // namespace

Trials::Subject Trials::Make() const
{
    Subject subject{.effect = m_class.create()};
    if (!subject.effect)
    {
        throw std::logic_error("the factory made no effect");
    }
    subject.stored = m_class.getStored(*subject.effect);
    if (!subject.stored)
    {
        throw std::logic_error("the class does not say what is stored");
    }
    return subject;
}

// With a value of one field, or none. The other fields are not read: to reset them would undo what a setter did beside its own
// value.
Trials::Subject Trials::MakeWith(const RecordPlace& place, std::size_t field, const PropertyTree* value) const
{
    Subject subject = Make();
    if (place.way.empty())
    {
        if (value)
        {
            m_schema.readField(field, subject.stored, *value, &TRIED);
        }
        return subject;
    }
    PropertyTree record;
    record.makeMap();
    if (value)
    {
        record[place.schema->fields[field].key] = *value;
    }
    const std::optional<std::size_t> first = Proc::FindField(m_schema, place.way.front().key);
    m_schema.readField(first.value_or(0), subject.stored, Wrapped(std::move(record), place), &TRIED);
    return subject;
}

std::optional<bool> Trials::IsCompared(const RecordPlace& place, std::size_t field) const
{
    const auto areEqual = [](const Subject& a, const Subject& b)
    { return a.effect->operator==(*b.effect) && b.effect->operator==(*a.effect); };
    const auto makeWithout = [&] { return MakeWith(place, field, nullptr); };
    bool isTried = false;
    bool isCompared = false;
    if (!Attempt(
            [&]
            {
                if (!areEqual(makeWithout(), makeWithout()))
                {
                    throw std::logic_error("an effect is not equal to its like");
                }
            }))
    {
        return std::nullopt;
    }
    for (const PropertyTree& probe : ProbesOf(*place.schema->fields[field].value, nullptr))
    {
        isTried = Attempt([&] { isCompared = !areEqual(makeWithout(), MakeWith(place, field, &probe)); }) || isTried;
        if (isCompared)
        {
            return true;
        }
    }
    return isTried ? std::optional(false) : std::nullopt;
}

bool Trials::IsWrittenAsRead(const RecordPlace& place, std::size_t field, const PropertyTree::Map& values) const
{
    constexpr Proc::WriteFlags whole{.resetTargets = true, .omitDefaults = false};
    PropertyTree tree;
    PropertyTree& record = place.way.empty() ? tree : tree[place.way.front().key];
    PropertyTree given;
    given.makeMap() = values;
    record = Wrapped(std::move(given), place);

    const Subject subject = Make();
    m_schema.read(subject.stored, tree.getMap(), &TRIED);
    PropertyTree written;
    m_schema.write(subject.stored, written.makeMap(), &whole, 0);
    const std::string_view key = place.schema->fields[field].key;
    return AreSame(RecordIn(written, place).at(key), values.at(key));
}

// Each value alone, and with the others of the record at several values of theirs.
bool Trials::IsComputed(const RecordPlace& place, std::size_t field) const
{
    constexpr std::size_t combinations = 4;
    const auto& fields = place.schema->fields;
    if (!IsWhole(*fields[field].value) || fields[field].value->kind == ValueKind::Other)
    {
        return false;
    }
    std::vector<PropertyTree::Map> beside(1);
    for (std::size_t number = 0; number != combinations; ++number)
    {
        PropertyTree::Map& others = beside.emplace_back();
        for (const FieldSchema& other : fields)
        {
            const Probes probes = IsWhole(*other.value) ? ProbesOf(*other.value, nullptr) : Probes();
            if (!probes.empty())
            {
                others[other.key] = probes[number % probes.size()];
            }
        }
    }
    for (PropertyTree::Map& values : beside)
    {
        for (const PropertyTree& probe : ProbesOf(*fields[field].value, nullptr))
        {
            values[fields[field].key] = probe;
            bool isSame = true;
            Attempt([&] { isSame = IsWrittenAsRead(place, field, values); });
            if (!isSame)
            {
                return true;
            }
        }
    }
    return false;
}

} // namespace Ombrel::Inspection
