#include "Proc/Settings/SettingsEffectPopArt.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectPopArt::CLASS_ID{CLASS_NAME};

template <> struct EnumNames<SettingsEffectPopArt::DisproportionPolicy>
{
    using E = SettingsEffectPopArt::DisproportionPolicy;

    static constexpr EnumNameRow ROWS[] = {
        {"Shrink", E::Shrink},
        {"Expand", E::Expand},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectPopArt>
{
    using R = SettingsEffectPopArt;
    using List =
        FieldList<AccessorDescriptor<"saturation", &R::SetSaturation, &R::GetSaturation>,
                  AccessorDescriptor<"hue", &R::SetHue, &R::GetHue>, AccessorDescriptor<"offset", &R::SetOffset, &R::GetOffset>,
                  AccessorDescriptor<"scale", &R::SetScale, &R::GetScale>,
                  AccessorDescriptor<"levels", &R::SetLevels, &R::GetLevels>,
                  AccessorDescriptor<"amountVertical", &R::SetAmountVertical, &R::GetAmountVertical>,
                  AccessorDescriptor<"amountHorizontal", &R::SetAmountHorizontal, &R::GetAmountHorizontal>,
                  FieldDescriptor<&R::m_invertScale>, AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>,
                  FieldDescriptor<&R::m_disproportionPolicy>>;
};

template struct Reflected<SettingsEffectPopArt>;

bool SettingsEffectPopArt::IsEmpty() const
{
    return *this == Reflected<SettingsEffectPopArt>::Default();
}

bool SettingsEffectPopArt::operator==(const SettingsEffectPopArt& other) const
{
    return Reflected<SettingsEffectPopArt>::Equal(*this, other);
}

} // namespace Ombrel::Proc
