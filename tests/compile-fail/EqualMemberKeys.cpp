#include "Record.h"

template <> struct Ombrel::Proc::Fields<Record>
{
#ifdef MUST_FAIL
    using List = FieldList<FieldDescriptor<&Record::m_radius>, FieldDescriptor<&Record::radius>>;
#else
    using List = FieldList<FieldDescriptor<&Record::m_radius>, FieldDescriptor<&Record::m_sigma>>;
#endif
};

template struct Ombrel::Proc::Reflected<Record>;
