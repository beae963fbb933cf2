#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

std::string ClassIdText(ClassName name)
{
    return name;
}

const void* NewClassId(ClassName name)
{
    return new std::string(name);
}

void DeleteClassId(const void* id) noexcept
{
    delete static_cast<const std::string*>(id);
}

} // namespace Ombrel::Proc
