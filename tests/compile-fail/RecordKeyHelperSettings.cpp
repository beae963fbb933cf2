#include "Record.h"

template <> struct Ombrel::Proc::Fields<Record>
{
#ifdef MUST_FAIL
    using List = FieldList<FieldDescriptor<&Record::m_helperSettings>, FieldDescriptor<&Record::m_radius>>;
#else
    using List = FieldList<FieldDescriptor<&Record::m_title>, FieldDescriptor<&Record::m_radius>>;
#endif
};

template struct Ombrel::Proc::Reflected<Record>;
