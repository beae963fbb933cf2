#include "Proc/Settings/SettingsEffectGIMPColorize.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectGIMPColorize::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectGIMPColorize>
{
    using R = SettingsEffectGIMPColorize;
    using List =
        FieldList<AccessorDescriptor<"hue", &R::SetHue, &R::GetHue>,
                  AccessorDescriptor<"saturation", &R::SetSaturation, &R::GetSaturation>,
                  AccessorDescriptor<"lightness", &R::SetLightness, &R::GetLightness>,
                  AccessorDescriptor<"red", &R::SetRed, &R::GetRed>, AccessorDescriptor<"green", &R::SetGreen, &R::GetGreen>,
                  AccessorDescriptor<"blue", &R::SetBlue, &R::GetBlue>,
                  AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>;
};

template struct Reflected<SettingsEffectGIMPColorize>;

bool SettingsEffectGIMPColorize::IsEmpty() const
{
    return *this == Reflected<SettingsEffectGIMPColorize>::Default();
}

bool SettingsEffectGIMPColorize::operator==(const SettingsEffectGIMPColorize& other) const
{
    return Reflected<SettingsEffectGIMPColorize>::Equal(*this, other);
}

} // namespace Ombrel::Proc
