#include "Proc/Settings/SettingsEffectGIMPColorTemperature.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectGIMPColorTemperature::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectGIMPColorTemperature::GetClassId() const
{
    return ClassIdOf<SettingsEffectGIMPColorTemperature>();
}

const RecordSchema& SettingsEffectGIMPColorTemperature::Schema() noexcept
{
    using R = SettingsEffectGIMPColorTemperature;
    return Describe<R,
                    FieldList<AccessorDescriptor<"originalTemperature", &R::SetOriginalTemperature, &R::GetOriginalTemperature>,
                              AccessorDescriptor<"intendedTemperature", &R::SetIntendedTemperature, &R::GetIntendedTemperature>,
                              AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>>();
}

bool SettingsEffectGIMPColorTemperature::IsEmpty() const
{
    return *this == Reflected<SettingsEffectGIMPColorTemperature>::Default();
}

} // namespace Ombrel::Proc
