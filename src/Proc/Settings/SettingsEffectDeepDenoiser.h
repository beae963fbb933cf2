#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_DENOISER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_DENOISER_H

#include "Proc/Settings/SettingsEffectDeepNeuralProcessor.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectDeepDenoiser
    : public SettingsRecord<SettingsEffectDeepDenoiser, SettingsEffectDeepNeuralProcessor>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DEEP_DENOISER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::Proc

#endif
