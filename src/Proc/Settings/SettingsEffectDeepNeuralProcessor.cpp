#include "Proc/Settings/SettingsEffectDeepNeuralProcessor.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDeepNeuralProcessor::CLASS_ID{CLASS_NAME};

SettingsEffectDeepNeuralProcessor::~SettingsEffectDeepNeuralProcessor() = default;

} // namespace Ombrel::Proc
