#include "Proc/Settings/SettingsEffectGuidedFilter.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectGuidedFilter::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectGuidedFilter>
{
    using R = SettingsEffectGuidedFilter;
    using List = FieldList<FieldDescriptor<&R::m_radius>, FieldDescriptor<&R::m_depth>, FieldDescriptor<&R::m_eps>>;
};

template struct Reflected<SettingsEffectGuidedFilter>;

SettingsEffectGuidedFilter::SettingsEffectGuidedFilter(std::int32_t radius, std::int32_t depth, double eps)
    : m_radius(radius), m_depth(depth), m_eps(eps)
{
}

bool SettingsEffectGuidedFilter::IsEmpty() const
{
    return m_radius == 0 || m_depth == 0 || m_eps == 0.0;
}

bool SettingsEffectGuidedFilter::operator==(const SettingsEffectGuidedFilter& other) const
{
    return Reflected<SettingsEffectGuidedFilter>::Equal(*this, other);
}

} // namespace Ombrel::Proc
