#include "Proc/Settings/SettingsEffectGIMPHueSaturation.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{
namespace
{

struct HueSaturationFields
{
    using R = SettingsEffectGIMPHueSaturation;

    template <auto Setter> static void SetMaster(R& record, float value) { (record.*Setter)(R::HueRange::Master, value); }
    template <auto Getter> static float GetMaster(const R& record) { return (record.*Getter)(R::HueRange::Master); }

    using List = FieldList<AccessorDescriptor<"hueMaster", &SetMaster<&R::SetHue>, &GetMaster<&R::GetHue>>,
                           AccessorDescriptor<"lightnessMaster", &SetMaster<&R::SetLightness>, &GetMaster<&R::GetLightness>>,
                           AccessorDescriptor<"saturationMaster", &SetMaster<&R::SetSaturation>, &GetMaster<&R::GetSaturation>>,
                           AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>,
                           AccessorDescriptor<"overlap", &R::SetOverlap, &R::GetOverlap>>;
};

} // namespace

OMBREL_EARLY_INIT const std::string SettingsEffectGIMPHueSaturation::CLASS_ID{CLASS_NAME};

const std::string& SettingsEffectGIMPHueSaturation::GetClassId() const
{
    return ClassIdOf<SettingsEffectGIMPHueSaturation>();
}

const RecordSchema& SettingsEffectGIMPHueSaturation::Schema() noexcept
{
    return Describe<SettingsEffectGIMPHueSaturation, HueSaturationFields::List>();
}

bool SettingsEffectGIMPHueSaturation::IsEmpty() const
{
    return *this == Reflected<SettingsEffectGIMPHueSaturation>::Default();
}

// The field list knows the master range alone.
bool SettingsEffectGIMPHueSaturation::operator==(const SettingsEffectGIMPHueSaturation& other) const
{
    return m_shifts == other.m_shifts && m_intensity == other.m_intensity && m_overlap == other.m_overlap;
}

} // namespace Ombrel::Proc
