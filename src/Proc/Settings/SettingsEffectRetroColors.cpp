#include "Proc/Settings/SettingsEffectRetroColors.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectRetroColors::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectRetroColors::GetClassId() const
{
    return ClassIdOf<SettingsEffectRetroColors>();
}

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

const RecordSchema& SettingsEffectRetroColors::Schema() noexcept
{
    using R = SettingsEffectRetroColors;
    return Describe<R, FieldList<AccessorDescriptor<"type", &R::SetType, &R::GetType>,
                                 AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>>();
}

bool SettingsEffectRetroColors::IsEmpty() const
{
    return *this == Reflected<SettingsEffectRetroColors>::Default();
}

} // namespace Ombrel::Proc
