#include "Proc/Settings/SettingsEffectPosterize.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectPosterize::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectPosterize>
{
    using R = SettingsEffectPosterize;
    using List = FieldList<FieldDescriptor<&R::m_isPal>, FieldDescriptor<&R::m_seed>,
                           AccessorDescriptor<"colors", &R::SetColorsNumber, &R::GetColorsNumber>,
                           AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>;
};

template struct Reflected<SettingsEffectPosterize>;

bool SettingsEffectPosterize::IsEmpty() const
{
    return *this == Reflected<SettingsEffectPosterize>::Default();
}

bool SettingsEffectPosterize::operator==(const SettingsEffectPosterize& other) const
{
    return Reflected<SettingsEffectPosterize>::Equal(*this, other);
}

} // namespace Ombrel::Proc
