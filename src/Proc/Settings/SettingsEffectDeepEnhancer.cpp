#include "Proc/Settings/SettingsEffectDeepEnhancer.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDeepEnhancer::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDeepEnhancer::GetClassId() const
{
    return ClassIdOf<SettingsEffectDeepEnhancer>();
}

const RecordSchema& SettingsEffectDeepEnhancer::Schema() noexcept
{
    return Describe<SettingsEffectDeepEnhancer, FieldList<>>();
}

} // namespace Ombrel::Proc
