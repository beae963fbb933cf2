#include "Proc/Settings/SettingsEffectBlurAdaptive.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectBlurAdaptive::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectBlurAdaptive>
{
    using R = SettingsEffectBlurAdaptive;
    using List = FieldList<FieldDescriptor<&R::m_radius>, FieldDescriptor<&R::m_sigma>>;
};

template struct Reflected<SettingsEffectBlurAdaptive>;

bool SettingsEffectBlurAdaptive::IsEmpty() const
{
    return m_radius == 0.0 || m_sigma == 0.0;
}

bool SettingsEffectBlurAdaptive::operator==(const SettingsEffectBlurAdaptive& other) const
{
    return Reflected<SettingsEffectBlurAdaptive>::Equal(*this, other);
}

} // namespace Ombrel::Proc
