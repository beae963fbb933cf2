#ifndef OMBREL_PROC_REFLECTION_DEFAULT_RECORD_H
#define OMBREL_PROC_REFLECTION_DEFAULT_RECORD_H

#include <concepts>

namespace Ombrel::Proc
{

/// A record without a default constructor says itself what its default is.
template <class Record> Record MakeDefaultRecord()
{
    if constexpr (std::default_initializable<Record>)
    {
        return Record();
    }
    else
    {
        return Record::MakeDefault();
    }
}

} // namespace Ombrel::Proc

#endif
