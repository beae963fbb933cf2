#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_REMOVE_BACKGROUND_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_REMOVE_BACKGROUND_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>
#include <string>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectRemoveBackground : public SettingsRecord<SettingsEffectRemoveBackground>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_REMOVE_BACKGROUND";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// What takes the background's place.
    struct BackgroundSettings
    {
        OMBREL_API static const RecordSchema& Schema() noexcept;

        bool operator==(const BackgroundSettings&) const = default;

        std::string m_bgFileName;
        RgbaColor m_bgColor;
    };

    /// Looks at everything but `m_backgroundSettings`: another background leaves two records equal.
    bool operator==(const SettingsEffectRemoveBackground& other) const;

    std::int32_t m_smooth = 0;
    std::int32_t m_morph = 0;
    std::int32_t m_adapt = 0;
    double m_x = 0.5;
    double m_y = 0.5;
    double m_scaleX = 1.0;
    double m_scaleY = 1.0;
    BackgroundSettings m_backgroundSettings; // stored even by default, then as an empty map
};

} // namespace Ombrel::Proc

#endif
