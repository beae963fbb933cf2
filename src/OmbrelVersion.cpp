#include "OmbrelVersion.h"

namespace Ombrel
{

const char* GetVersion() noexcept
{
    return OMBREL_VERSION_STRING;
}

} // namespace Ombrel
