#include "Proc/Settings/SettingsEffectBalanceLuma.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectBalanceLuma::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectBalanceLuma>
{
    using R = SettingsEffectBalanceLuma;
    using List = FieldList<FieldDescriptor<&R::m_shadows>, FieldDescriptor<&R::m_highlights>, FieldDescriptor<&R::m_exposure>,
                           FieldDescriptor<&R::m_autoContrast>>;
};

template struct Reflected<SettingsEffectBalanceLuma>;

bool SettingsEffectBalanceLuma::IsEmpty() const
{
    return m_shadows == 0 && m_highlights == 0 && m_exposure == 0 && !m_autoContrast;
}

bool SettingsEffectBalanceLuma::operator==(const SettingsEffectBalanceLuma& other) const
{
    return Reflected<SettingsEffectBalanceLuma>::Equal(*this, other);
}

} // namespace Ombrel::Proc
