#include "Proc/Settings/BaseSettingsModelFile.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string BaseSettingsModelFile::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& BaseSettingsModelFile::GetClassId() const
{
    return ClassIdOf<BaseSettingsModelFile>();
}

bool BaseSettingsModelFile::IsEmpty() const
{
    return false;
}

bool BaseSettingsModelFile::operator==(const BaseSettingsModelFile& other) const
{
    return modelFile == other.modelFile;
}

} // namespace Ombrel::Proc
