#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_LIGHT_LEAKS_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_LIGHT_LEAKS_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Light that fell into the camera. Any preset changes a picture: there is no neutral state, and the record is never empty.
class OMBREL_API SettingsEffectLightLeaks : public ComparedRecord<SettingsEffectLightLeaks>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_LIGHT_LEAKS";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// Counted from 0, named from 1.
    enum class LeakPreset : std::int32_t
    {
        enPreset1 = 0,
        enPreset2 = 1,
        enPreset3 = 2,
        enPreset4 = 3,
        enPreset5 = 4,
        enPreset6 = 5,
        enPreset7 = 6,
        enPreset8 = 7,
        enPreset9 = 8,
        enPreset10 = 9,
        enPreset11 = 10,
        enPreset12 = 11,
        enPreset13 = 12,
        enPreset14 = 13,
        enPreset15 = 14,
        enPreset16 = 15,
    };

    LeakPreset GetPreset() const { return m_preset; }
    void SetPreset(LeakPreset value) { m_preset = value; }

private:
    LeakPreset m_preset = LeakPreset::enPreset1;
};

} // namespace Ombrel::Proc

#endif
