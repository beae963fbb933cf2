#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_BALANCE_AUTO_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_BALANCE_AUTO_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectColorBalanceAuto : public ComparedRecord<SettingsEffectColorBalanceAuto>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_COLOR_BALANCE_AUTO";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if both balances are off and `m_exposure` is 0.
    bool IsEmpty() const override;

    bool m_whiteBalance = false;
    bool m_lightBalance = false;
    std::int32_t m_exposure = 0;
};

} // namespace Ombrel::Proc

#endif
