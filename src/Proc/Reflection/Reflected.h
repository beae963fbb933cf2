#ifndef OMBREL_PROC_REFLECTION_REFLECTED_H
#define OMBREL_PROC_REFLECTION_REFLECTED_H

#include "Proc/Reflection/Codec.h"

#include <concepts>

namespace Ombrel::Proc
{

/// Names the fields of a type that cannot have a `Schema` function of its own, such as a pair: specialised with
/// `using List = FieldList<...>` where every file that stores the type sees it.
template <class Record> struct Fields;

/// Describes a record by its field list. Defined in `Folds.h`.
template <class Record, class List> const RecordSchema& Describe() noexcept;

/// A record that describes itself: its `Schema()` returns `Describe<Record, FieldList<...>>()`.
template <class Record>
concept DescribesItself = requires
{
    {
        Record::Schema()
        } -> std::same_as<const RecordSchema&>;
};

/// The folds over a record's field list, for callers that know the record's type. Each calls the one in its schema.
template <class Record> struct Reflected
{
    static const RecordSchema& Schema() noexcept
    {
        if constexpr (DescribesItself<Record>)
        {
            return Record::Schema();
        }
        else
        {
            return Describe<Record, typename Fields<Record>::List>();
        }
    }

    /// The record that missing keys are reset to and written values are compared with. Made on first use.
    static const Record& Default() { return *static_cast<const Record*>(Schema().defaults()); }

    // Both go through the fields in declaration order.
    static void Read(const ReadContext<Record>& context) { Schema().read(&context.record, context.source, context.flags); }

    static void Write(const WriteContext<Record>& context)
    {
        Schema().write(&context.record, context.target, context.flags, context.others);
    }

    /// Field by field in declaration order, each by its own `==`.
    static bool Equal(const Record& a, const Record& b) { return Schema().equal(&a, &b); }
};

/// A type without a codec of its own is a record: it is stored as a nested map.
template <class Record> struct Codec
{
    static constexpr ValueSchema SCHEMA{.kind = ValueKind::Record, .record = &Reflected<Record>::Schema};

    static void Write(PropertyTree& child, const Record& record, const WriteFlags* flags)
    {
        if (flags->resetTargets)
        {
            child.makeMap();
        }
        child.convertToMap();
        Reflected<Record>::Write({record, child.getMap(), flags});
    }

    static void Read(const PropertyTree& child, Record& record, const ReadFlags* flags)
    {
        Reflected<Record>::Read({record, child.getMap(), flags});
    }
};

} // namespace Ombrel::Proc

#endif
