#include "Proc/Settings/BaseSettingsModelFile.h"

namespace Ombrel::Proc
{

const std::string BaseSettingsModelFile::CLASS_ID{CLASS_NAME};

bool BaseSettingsModelFile::IsEmpty() const
{
    return false;
}

bool BaseSettingsModelFile::operator==(const BaseSettingsModelFile& other) const
{
    return modelFile == other.modelFile;
}

} // namespace Ombrel::Proc
