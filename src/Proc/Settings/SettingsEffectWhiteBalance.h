#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_WHITE_BALANCE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_WHITE_BALANCE_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectWhiteBalance : public ComparedRecord<SettingsEffectWhiteBalance>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_WHITE_BALANCE_PHOTO";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_color` is a grey, whatever its alpha: a grey that is to be neutral is neutral already.
    bool IsEmpty() const override;

    RgbaColor m_color;
};

} // namespace Ombrel::Proc

#endif
