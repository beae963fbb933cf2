#include "Proc/Settings/BaseSettingsNeural.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string BaseSettingsNeural::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& BaseSettingsNeural::GetClassId() const
{
    return ClassIdOf<BaseSettingsNeural>();
}

bool BaseSettingsNeural::operator==(const BaseSettingsNeural& other) const
{
    return BaseSettingsModelFile::operator==(other) && neuralOption1 == other.neuralOption1 &&
           neuralOption2 == other.neuralOption2 && neuralOption3 == other.neuralOption3 &&
           neuralOption4 == other.neuralOption4 && neuralMode == other.neuralMode;
}

} // namespace Ombrel::Proc
