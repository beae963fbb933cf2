#include "Proc/Settings/SettingsEffectTintTemperature.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectTintTemperature::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectTintTemperature>
{
    using R = SettingsEffectTintTemperature;
    using List = FieldList<FieldDescriptor<&R::m_tint>, FieldDescriptor<&R::m_temperature>>;
};

template struct Reflected<SettingsEffectTintTemperature>;

bool SettingsEffectTintTemperature::IsEmpty() const
{
    return m_tint == 0 && m_temperature == 0;
}

bool SettingsEffectTintTemperature::operator==(const SettingsEffectTintTemperature& other) const
{
    return Reflected<SettingsEffectTintTemperature>::Equal(*this, other);
}

} // namespace Ombrel::Proc
