#include "Proc/Settings/SettingsEffectDeepNeuralProcessor.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDeepNeuralProcessor::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDeepNeuralProcessor::GetClassId() const
{
    return ClassIdOf<SettingsEffectDeepNeuralProcessor>();
}

} // namespace Ombrel::Proc
