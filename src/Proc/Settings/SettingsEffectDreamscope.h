#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DREAMSCOPE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DREAMSCOPE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>
#include <string>

namespace Ombrel::Proc
{

/// Style transfer by a named model.
class OMBREL_API SettingsEffectDreamscope : public SettingsRecord<SettingsEffectDreamscope>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DREAMSCOPE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if there is no model name or `m_workingSize` is 0, so by default.
    bool IsEmpty() const override;

    /// Looks at `m_modelName`, `m_model64Bit` and `m_workingSize` alone.
    bool operator==(const SettingsEffectDreamscope& other) const;

    std::string m_modelName;
    std::string modelExtension = ".t7"; // copied with the record, neither stored nor compared
    bool m_model64Bit = true;
    std::int32_t m_workingSize = 768;
    std::int32_t m_denoiseChroma = 30;
    double m_denoiseBlurRadius = 5.0;
    std::int32_t m_denoiseBlurSigma = 10; // an integer, unlike the radius
};

} // namespace Ombrel::Proc

#endif
