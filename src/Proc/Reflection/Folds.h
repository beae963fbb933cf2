#ifndef OMBREL_PROC_REFLECTION_FOLDS_H
#define OMBREL_PROC_REFLECTION_FOLDS_H

#include "Proc/Reflection/FieldList.h"
#include "Proc/Reflection/Reflected.h"

#include <algorithm>
#include <concepts>

namespace Ombrel::Proc
{
namespace ReflectedDetail
{

template <class Descriptor, class Record> void ReadField(const ReadContext<Record>& context)
{
    const auto found = context.source.find(Descriptor::KEY);
    if (found != context.source.end())
    {
        Descriptor::Read(found->second, context.record, context.flags);
    }
    else if (context.flags->resetMissing)
    {
        Descriptor::Reset(context.record, Reflected<Record>::Default());
    }
}

template <class Descriptor, class Record> void WriteField(const WriteContext<Record>& context)
{
    if (context.flags->omitDefaults && Descriptor::Equal(context.record, Reflected<Record>::Default()))
    {
        return;
    }
    Descriptor::Write(context.target[Descriptor::KEY], context.record, context.flags);
}

template <class Record, class... Descriptors> void ReadFields(const ReadContext<Record>& context, FieldList<Descriptors...>)
{
    (ReadField<Descriptors>(context), ...);
}

template <class Record, class... Descriptors> void WriteFields(const WriteContext<Record>& context, FieldList<Descriptors...>)
{
    (WriteField<Descriptors>(context), ...);
}

template <class Record, class... Descriptors> bool EqualFields(const Record& a, const Record& b, FieldList<Descriptors...>)
{
    return (Descriptors::Equal(a, b) && ...);
}

// A record whose map is not its own alone says in RESERVED_KEYS which keys are taken.
template <class Record> consteval bool HasOwnKeys()
{
    if constexpr (requires { Record::RESERVED_KEYS; })
    {
        return std::ranges::none_of(Record::RESERVED_KEYS, &Fields<Record>::List::HasKey);
    }
    return true;
}

} // namespace ReflectedDetail

template <class Record> const Record& Reflected<Record>::Default()
{
    static_assert(ReflectedDetail::HasOwnKeys<Record>(), "a field has a key that belongs to the effect itself");
    if constexpr (std::default_initializable<Record>)
    {
        static const Record record{};
        return record;
    }
    else
    {
        static const Record record = Record::MakeDefault();
        return record;
    }
}

template <class Record> void Reflected<Record>::Read(const ReadContext<Record>& context)
{
    ReflectedDetail::ReadFields(context, typename Fields<Record>::List());
}

template <class Record> void Reflected<Record>::Write(const WriteContext<Record>& context)
{
    ReflectedDetail::WriteFields(context, typename Fields<Record>::List());
}

template <class Record> bool Reflected<Record>::Equal(const Record& a, const Record& b)
{
    return ReflectedDetail::EqualFields(a, b, typename Fields<Record>::List());
}

} // namespace Ombrel::Proc

#endif
