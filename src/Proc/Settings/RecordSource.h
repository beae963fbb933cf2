#ifndef OMBREL_PROC_SETTINGS_RECORD_SOURCE_H
#define OMBREL_PROC_SETTINGS_RECORD_SOURCE_H

#include "OmbrelLasting.h"
#include "Proc/EarlyInit.h"
#include "Proc/Reflection/Folds.h"

#include <string>

// What the source file of a record includes.
namespace Ombrel::Proc
{

template <class Class> std::string MakeClassId()
{
    return Class::CLASS_NAME;
}

/// What `GetClassId` of a record or settings class returns. It is there before the initialisers of a program and after its
/// destructors, unlike the public `CLASS_ID`.
template <class Class> const std::string& ClassIdOf()
{
    return Lasting<&MakeClassId<Class>>();
}

} // namespace Ombrel::Proc

#endif
