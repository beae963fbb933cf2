#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLACK_WHITE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLACK_WHITE_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectBlackWhite : public ComparedRecord<SettingsEffectBlackWhite>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_BLACK_WHITE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    double m_threshold = 0.5;
    RgbaColor m_black;
    RgbaColor m_white{255, 255, 255, 255};
};

} // namespace Ombrel::Proc

#endif
