#ifndef OMBREL_PROC_REFLECTION_DEFAULT_RECORD_H
#define OMBREL_PROC_REFLECTION_DEFAULT_RECORD_H

#include "OmbrelExport.h"

#include <concepts>

namespace Ombrel::Proc
{

/// The default record: made by the default constructor, or by `Record::MakeDefault()` if there is none.
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
