#include "Proc/Settings/SettingsEffectGuidedFilter.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectGuidedFilter::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectGuidedFilter::GetClassId() const
{
    return ClassIdOf<SettingsEffectGuidedFilter>();
}

const RecordSchema& SettingsEffectGuidedFilter::Schema() noexcept
{
    using R = SettingsEffectGuidedFilter;
    return Describe<R, FieldList<FieldDescriptor<&R::m_radius>, FieldDescriptor<&R::m_depth>, FieldDescriptor<&R::m_eps>>>();
}

SettingsEffectGuidedFilter::SettingsEffectGuidedFilter(std::int32_t radius, std::int32_t depth, double eps)
    : m_radius(radius), m_depth(depth), m_eps(eps)
{
}

bool SettingsEffectGuidedFilter::IsEmpty() const
{
    return m_radius == 0 || m_depth == 0 || m_eps == 0.0;
}

} // namespace Ombrel::Proc
