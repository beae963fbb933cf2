#include "Proc/Settings/SettingsEffectGradientPosterize.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectGradientPosterize::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectGradientPosterize::GetClassId() const
{
    return ClassIdOf<SettingsEffectGradientPosterize>();
}

const RecordSchema& SettingsEffectGradientPosterize::Schema() noexcept
{
    using R = SettingsEffectGradientPosterize;
    return Describe<R, FieldList<FieldDescriptor<&R::m_colorCount>>>();
}

bool SettingsEffectGradientPosterize::IsEmpty() const
{
    return m_colorCount == 0;
}

} // namespace Ombrel::Proc
