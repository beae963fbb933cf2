#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SPLIT_TONING_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SPLIT_TONING_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectSplitToning : public ComparedRecord<SettingsEffectSplitToning>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_SPLIT_TONING";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    RgbaColor m_colorFirst;
    RgbaColor m_colorSecond{255, 255, 255, 255};
};

} // namespace Ombrel::Proc

#endif
