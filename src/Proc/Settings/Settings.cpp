#include "Proc/Settings/Settings.h"

namespace Ombrel::Proc
{

bool Settings::IsEmpty() const
{
    return false;
}

void Settings::Deserialize(const std::string&) {}

} // namespace Ombrel::Proc
