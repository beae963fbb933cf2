#include "Proc/Settings/SettingsEffectDetailsEnhanceEx.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDetailsEnhanceEx::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDetailsEnhanceEx>
{
    using R = SettingsEffectDetailsEnhanceEx;
    using List = FieldList<FieldDescriptor<&R::m_strength>>;
};

template struct Reflected<SettingsEffectDetailsEnhanceEx>;

bool SettingsEffectDetailsEnhanceEx::IsEmpty() const
{
    return m_strength == 0.0;
}

bool SettingsEffectDetailsEnhanceEx::operator==(const SettingsEffectDetailsEnhanceEx& other) const
{
    return Reflected<SettingsEffectDetailsEnhanceEx>::Equal(*this, other);
}

} // namespace Ombrel::Proc
