#include "Proc/Settings/SettingsEffectEmboss.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectEmboss::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectEmboss>
{
    using R = SettingsEffectEmboss;
    using List = FieldList<FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>, FieldDescriptor<&R::m_colored>>;
};

template struct Reflected<SettingsEffectEmboss>;

bool SettingsEffectEmboss::IsEmpty() const
{
    return *this == Reflected<SettingsEffectEmboss>::Default();
}

bool SettingsEffectEmboss::operator==(const SettingsEffectEmboss& other) const
{
    return Reflected<SettingsEffectEmboss>::Equal(*this, other);
}

} // namespace Ombrel::Proc
