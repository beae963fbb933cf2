#include "Proc/Settings/SettingsEffectPopArt.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectPopArt::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectPopArt::GetClassId() const
{
    return ClassIdOf<SettingsEffectPopArt>();
}

template <> struct EnumNames<SettingsEffectPopArt::DisproportionPolicy>
{
    using E = SettingsEffectPopArt::DisproportionPolicy;

    static constexpr EnumNameRow ROWS[] = {
        {"Shrink", E::Shrink},
        {"Expand", E::Expand},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectPopArt::Schema() noexcept
{
    using R = SettingsEffectPopArt;
    return Describe<
        R,
        FieldList<AccessorDescriptor<"saturation", &R::SetSaturation, &R::GetSaturation>,
                  AccessorDescriptor<"hue", &R::SetHue, &R::GetHue>, AccessorDescriptor<"offset", &R::SetOffset, &R::GetOffset>,
                  AccessorDescriptor<"scale", &R::SetScale, &R::GetScale>,
                  AccessorDescriptor<"levels", &R::SetLevels, &R::GetLevels>,
                  AccessorDescriptor<"amountVertical", &R::SetAmountVertical, &R::GetAmountVertical>,
                  AccessorDescriptor<"amountHorizontal", &R::SetAmountHorizontal, &R::GetAmountHorizontal>,
                  AccessorDescriptor<"invertScale", &R::SetInvertScale, &R::GetInvertScale>,
                  AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>,
                  AccessorDescriptor<"disproportionPolicy", &R::SetDisproportionPolicy, &R::GetDisproportionPolicy>>>();
}

bool SettingsEffectPopArt::IsEmpty() const
{
    return *this == Reflected<SettingsEffectPopArt>::Default();
}

} // namespace Ombrel::Proc
