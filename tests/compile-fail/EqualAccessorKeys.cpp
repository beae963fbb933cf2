#include "Record.h"

template <> struct Ombrel::Proc::Fields<Record>
{
#ifdef MUST_FAIL
    using List =
        FieldList<FieldDescriptor<&Record::m_sigma>, AccessorDescriptor<"sigma", &Record::SetRadius, &Record::GetRadius>>;
#else
    using List =
        FieldList<FieldDescriptor<&Record::m_sigma>, AccessorDescriptor<"radius", &Record::SetRadius, &Record::GetRadius>>;
#endif
};

template struct Ombrel::Proc::Reflected<Record>;
