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

    template <KeyText Key, auto Setter, auto Getter>
    struct Master : AccessorDescriptor<Key, &SetMaster<Setter>, &GetMaster<Getter>>
    {
        static constexpr std::string_view ACCESS = ACCESSOR_NAMES<Setter, Getter>;
    };

    using List =
        FieldList<Master<"hueMaster", &R::SetHue, &R::GetHue>, Master<"lightnessMaster", &R::SetLightness, &R::GetLightness>,
                  Master<"saturationMaster", &R::SetSaturation, &R::GetSaturation>,
                  AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>,
                  AccessorDescriptor<"overlap", &R::SetOverlap, &R::GetOverlap>>;
};

} // namespace

OMBREL_EARLY_INIT const std::string SettingsEffectGIMPHueSaturation::CLASS_ID = ClassIdText(CLASS_NAME);

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
