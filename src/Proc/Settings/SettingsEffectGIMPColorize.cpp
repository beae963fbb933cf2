#include "Proc/Settings/SettingsEffectGIMPColorize.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectGIMPColorize::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectGIMPColorize::GetClassId() const
{
    return ClassIdOf<SettingsEffectGIMPColorize>();
}

const RecordSchema& SettingsEffectGIMPColorize::Schema() noexcept
{
    using R = SettingsEffectGIMPColorize;
    return Describe<
        R, FieldList<AccessorDescriptor<"hue", &R::SetHue, &R::GetHue>,
                     AccessorDescriptor<"saturation", &R::SetSaturation, &R::GetSaturation>,
                     AccessorDescriptor<"lightness", &R::SetLightness, &R::GetLightness>,
                     AccessorDescriptor<"red", &R::SetRed, &R::GetRed>, AccessorDescriptor<"green", &R::SetGreen, &R::GetGreen>,
                     AccessorDescriptor<"blue", &R::SetBlue, &R::GetBlue>,
                     AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>>();
}

bool SettingsEffectGIMPColorize::IsEmpty() const
{
    return *this == Reflected<SettingsEffectGIMPColorize>::Default();
}

} // namespace Ombrel::Proc
