#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_INPAINT_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_INPAINT_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectInpaint : public SettingsRecord<SettingsEffectInpaint>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_INPAINT";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// `m_lookupSize` is equal below a difference of 1e-05; a NaN equals nothing, and neither does an infinity.
    bool operator==(const SettingsEffectInpaint& other) const;

    double m_lookupSize = 0.0;
    std::int32_t m_patchSize = 11;
};

} // namespace Ombrel::Proc

#endif
