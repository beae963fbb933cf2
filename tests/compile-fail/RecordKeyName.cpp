#include "Record.h"

template <> struct Ombrel::Proc::Fields<Record>
{
#ifdef MUST_FAIL
    using List = FieldList<FieldDescriptor<&Record::m_name>>;
#else
    using List = FieldList<FieldDescriptor<&Record::m_title>>;
#endif
};

template struct Ombrel::Proc::Reflected<Record>;
