#include "Proc/Settings/SettingsEffectEyeExtending.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectEyeExtending::CLASS_ID{CLASS_NAME};

extern template struct Reflected<Eyes>;

template <> struct Fields<SettingsEffectEyeExtending>
{
    using R = SettingsEffectEyeExtending;
    using List = FieldList<FieldDescriptor<&R::m_eyes>, FieldDescriptor<&R::m_strength>>;
};

template struct Reflected<SettingsEffectEyeExtending>;

// Both eyes or none: unlike face thinning, the effect goes by its geometry.
bool SettingsEffectEyeExtending::IsEmpty() const
{
    return m_eyes.m_left.m_contour.m_contour.empty() || m_eyes.m_right.m_contour.m_contour.empty();
}

bool SettingsEffectEyeExtending::operator==(const SettingsEffectEyeExtending& other) const
{
    return Reflected<SettingsEffectEyeExtending>::Equal(*this, other);
}

} // namespace Ombrel::Proc
