#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

std::string ClassIdText(const char* name)
{
    return name;
}

const void* NewClassId(const char* name)
{
    return new std::string(name);
}

void DeleteClassId(const void* id) noexcept
{
    delete static_cast<const std::string*>(id);
}

} // namespace Ombrel::Proc
