#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_NEURAL_PROCESSOR_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_NEURAL_PROCESSOR_H

#include "Proc/Settings/BaseSettingsNeural.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// The base of the neural records that say more about how the picture is processed. What it adds takes no part in the
/// comparison.
class OMBREL_API SettingsEffectDeepNeuralProcessor
    : public SettingsRecord<SettingsEffectDeepNeuralProcessor, BaseSettingsNeural>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DEEP_NEURAL_PROCESSOR";
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;

    /// Numbers of the program that processes the picture, which gives them their meaning. Never stored.
    std::int32_t processorMode = 3;
    std::int32_t processorIndex = -1;
    std::int32_t processorLimitFirst = 3072;
    std::int32_t processorLimitSecond = 3072;
};

} // namespace Ombrel::Proc

#endif
