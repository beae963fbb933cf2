#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_MIX_BURN_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_MIX_BURN_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// The strength is stored as given; 0 changes nothing.
class OMBREL_API SettingsEffectColorMixBurn : public ComparedRecord<SettingsEffectColorMixBurn>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_COLOR_MIX_BURN";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if every value has its default.
    bool IsEmpty() const override;

    double GetStrength() const { return m_strength; }
    void SetStrength(double value) { m_strength = value; }

private:
    double m_strength = 0.0;
};

} // namespace Ombrel::Proc

#endif
