#include "Proc/Settings/SettingsEffectGIMPColorCorrection.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectGIMPColorCorrection::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectGIMPColorCorrection>
{
    using R = SettingsEffectGIMPColorCorrection;
    using List = FieldList<AccessorDescriptor<"brightness", &R::SetBrightness, &R::GetBrightness>,
                           AccessorDescriptor<"contrast", &R::SetContrast, &R::GetContrast>>;
};

template struct Reflected<SettingsEffectGIMPColorCorrection>;

bool SettingsEffectGIMPColorCorrection::IsEmpty() const
{
    return *this == Reflected<SettingsEffectGIMPColorCorrection>::Default();
}

bool SettingsEffectGIMPColorCorrection::operator==(const SettingsEffectGIMPColorCorrection& other) const
{
    return Reflected<SettingsEffectGIMPColorCorrection>::Equal(*this, other);
}

} // namespace Ombrel::Proc
