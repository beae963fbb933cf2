#include "Proc/Settings/SettingsEffectDeepImageEnhancer.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDeepImageEnhancer::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDeepImageEnhancer::GetClassId() const
{
    return ClassIdOf<SettingsEffectDeepImageEnhancer>();
}

const RecordSchema& SettingsEffectDeepImageEnhancer::Schema() noexcept
{
    return Describe<SettingsEffectDeepImageEnhancer, FieldList<>>();
}

} // namespace Ombrel::Proc
