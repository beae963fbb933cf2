#include "Proc/Settings/SettingsEffectColorBalanceAuto.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectColorBalanceAuto::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectColorBalanceAuto>
{
    using R = SettingsEffectColorBalanceAuto;
    using List =
        FieldList<FieldDescriptor<&R::m_whiteBalance>, FieldDescriptor<&R::m_lightBalance>, FieldDescriptor<&R::m_exposure>>;
};

template struct Reflected<SettingsEffectColorBalanceAuto>;

bool SettingsEffectColorBalanceAuto::IsEmpty() const
{
    return !m_whiteBalance && !m_lightBalance && m_exposure == 0;
}

bool SettingsEffectColorBalanceAuto::operator==(const SettingsEffectColorBalanceAuto& other) const
{
    return Reflected<SettingsEffectColorBalanceAuto>::Equal(*this, other);
}

} // namespace Ombrel::Proc
