#ifndef OMBREL_PROC_REFLECTION_REFLECTED_H
#define OMBREL_PROC_REFLECTION_REFLECTED_H

#include "Proc/Reflection/Codec.h"

namespace Ombrel::Proc
{

/// The folds over a record's field list: everything that serialisation, comparison and property access do with a record is
/// one of these, and a further algorithm is a further fold. None is inlined, so that each exists once per record.
///
/// Their bodies stand in `Folds.h`, for the one file that holds the list and compiles them: `template struct
/// Reflected<Record>;`. Another file with a list that nests the record writes `extern template struct Reflected<Record>;`.
template <class Record> struct Reflected
{
    /// The record that missing keys are reset to and written values are compared with. Made on first use.
    [[gnu::noinline]] static const Record& Default();

    // Both go through the fields in declaration order.
    static void Read(const ReadContext<Record>& context);
    static void Write(const WriteContext<Record>& context);

    /// Field by field in declaration order, each by its own `==`.
    [[gnu::noinline]] static bool Equal(const Record& a, const Record& b);

    /// The fields as constant data, with the way to each of them.
    static const RecordSchema& Schema() noexcept;
};

/// What has no codec of its own is a record, stored as a nested map.
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
