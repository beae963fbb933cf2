#include "Proc/Settings/SettingsEffectCharcoal.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectCharcoal::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectCharcoal>
{
    using R = SettingsEffectCharcoal;
    using List = FieldList<FieldDescriptor<&R::m_radius>, FieldDescriptor<&R::m_sigma>>;
};

template struct Reflected<SettingsEffectCharcoal>;

bool SettingsEffectCharcoal::IsEmpty() const
{
    return m_radius == 0;
}

bool SettingsEffectCharcoal::operator==(const SettingsEffectCharcoal& other) const
{
    return Reflected<SettingsEffectCharcoal>::Equal(*this, other);
}

} // namespace Ombrel::Proc
