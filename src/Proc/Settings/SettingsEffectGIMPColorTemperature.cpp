#include "Proc/Settings/SettingsEffectGIMPColorTemperature.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectGIMPColorTemperature::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectGIMPColorTemperature>
{
    using R = SettingsEffectGIMPColorTemperature;
    using List = FieldList<AccessorDescriptor<"originalTemperature", &R::SetOriginalTemperature, &R::GetOriginalTemperature>,
                           AccessorDescriptor<"intendedTemperature", &R::SetIntendedTemperature, &R::GetIntendedTemperature>,
                           AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>;
};

template struct Reflected<SettingsEffectGIMPColorTemperature>;

bool SettingsEffectGIMPColorTemperature::IsEmpty() const
{
    return *this == Reflected<SettingsEffectGIMPColorTemperature>::Default();
}

bool SettingsEffectGIMPColorTemperature::operator==(const SettingsEffectGIMPColorTemperature& other) const
{
    return Reflected<SettingsEffectGIMPColorTemperature>::Equal(*this, other);
}

} // namespace Ombrel::Proc
