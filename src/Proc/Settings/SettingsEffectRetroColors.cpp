#include "Proc/Settings/SettingsEffectRetroColors.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectRetroColors::CLASS_ID{CLASS_NAME};

template <> struct EnumNames<SettingsEffectRetroColors::RetroType>
{
    using E = SettingsEffectRetroColors::RetroType;

    static constexpr EnumNameRow ROWS[] = {
        {"enRetro", E::enRetro},
        {"en70s", E::en70s},
        {"enGrayscale", E::enGrayscale},
        {"enSepia", E::enSepia},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectRetroColors>
{
    using R = SettingsEffectRetroColors;
    using List = FieldList<AccessorDescriptor<"type", &R::SetType, &R::GetType>,
                           AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>;
};

template struct Reflected<SettingsEffectRetroColors>;

bool SettingsEffectRetroColors::IsEmpty() const
{
    return *this == Reflected<SettingsEffectRetroColors>::Default();
}

bool SettingsEffectRetroColors::operator==(const SettingsEffectRetroColors& other) const
{
    return Reflected<SettingsEffectRetroColors>::Equal(*this, other);
}

} // namespace Ombrel::Proc
