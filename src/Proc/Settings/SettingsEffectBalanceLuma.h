#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BALANCE_LUMA_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BALANCE_LUMA_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectBalanceLuma : public ComparedRecord<SettingsEffectBalanceLuma>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_BALANCE_LUMA";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if the three numbers are 0 and the automatic contrast is off.
    bool IsEmpty() const override;

    std::int32_t m_shadows = 0;
    std::int32_t m_highlights = 0;
    std::int32_t m_exposure = 0;
    bool m_autoContrast = false;
};

} // namespace Ombrel::Proc

#endif
