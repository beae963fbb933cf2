#include "Proc/Settings/SettingsEffectVibrance.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectVibrance::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectVibrance>
{
    using R = SettingsEffectVibrance;
    using List = FieldList<FieldDescriptor<&R::m_strength>>;
};

template struct Reflected<SettingsEffectVibrance>;

bool SettingsEffectVibrance::IsEmpty() const
{
    return m_strength == 0;
}

bool SettingsEffectVibrance::operator==(const SettingsEffectVibrance& other) const
{
    return Reflected<SettingsEffectVibrance>::Equal(*this, other);
}

} // namespace Ombrel::Proc
