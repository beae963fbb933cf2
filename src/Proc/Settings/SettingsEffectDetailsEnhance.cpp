#include "Proc/Settings/SettingsEffectDetailsEnhance.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDetailsEnhance::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDetailsEnhance>
{
    using R = SettingsEffectDetailsEnhance;
    using List = FieldList<FieldDescriptor<&R::m_strength>>;
};

template struct Reflected<SettingsEffectDetailsEnhance>;

bool SettingsEffectDetailsEnhance::IsEmpty() const
{
    return m_strength == 0;
}

bool SettingsEffectDetailsEnhance::operator==(const SettingsEffectDetailsEnhance& other) const
{
    return Reflected<SettingsEffectDetailsEnhance>::Equal(*this, other);
}

} // namespace Ombrel::Proc
