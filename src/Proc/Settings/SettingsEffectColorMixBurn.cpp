#include "Proc/Settings/SettingsEffectColorMixBurn.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectColorMixBurn::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectColorMixBurn>
{
    using R = SettingsEffectColorMixBurn;
    using List = FieldList<AccessorDescriptor<"strength", &R::SetStrength, &R::GetStrength>>;
};

template struct Reflected<SettingsEffectColorMixBurn>;

bool SettingsEffectColorMixBurn::IsEmpty() const
{
    return *this == Reflected<SettingsEffectColorMixBurn>::Default();
}

bool SettingsEffectColorMixBurn::operator==(const SettingsEffectColorMixBurn& other) const
{
    return Reflected<SettingsEffectColorMixBurn>::Equal(*this, other);
}

} // namespace Ombrel::Proc
