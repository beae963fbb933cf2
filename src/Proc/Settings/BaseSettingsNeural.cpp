#include "Proc/Settings/BaseSettingsNeural.h"

namespace Ombrel::Proc
{

const std::string BaseSettingsNeural::CLASS_ID{CLASS_NAME};

BaseSettingsNeural::~BaseSettingsNeural() = default;

bool BaseSettingsNeural::operator==(const BaseSettingsNeural& other) const
{
    return BaseSettingsModelFile::operator==(other) && neuralOption1 == other.neuralOption1 &&
           neuralOption2 == other.neuralOption2 && neuralOption3 == other.neuralOption3 &&
           neuralOption4 == other.neuralOption4 && neuralMode == other.neuralMode;
}

} // namespace Ombrel::Proc
