#include "Proc/Settings/SettingsEffectBlurMotion.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectBlurMotion::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectBlurMotion>
{
    using R = SettingsEffectBlurMotion;
    using List = FieldList<FieldDescriptor<&R::m_radius>, FieldDescriptor<&R::m_sigma>, FieldDescriptor<&R::m_angle>>;
};

template struct Reflected<SettingsEffectBlurMotion>;

bool SettingsEffectBlurMotion::IsEmpty() const
{
    return m_radius == 0;
}

bool SettingsEffectBlurMotion::operator==(const SettingsEffectBlurMotion& other) const
{
    return Reflected<SettingsEffectBlurMotion>::Equal(*this, other);
}

} // namespace Ombrel::Proc
