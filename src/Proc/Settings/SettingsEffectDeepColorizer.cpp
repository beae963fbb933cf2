#include "Proc/Settings/SettingsEffectDeepColorizer.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDeepColorizer::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDeepColorizer::GetClassId() const
{
    return ClassIdOf<SettingsEffectDeepColorizer>();
}

const RecordSchema& SettingsEffectDeepColorizer::Schema() noexcept
{
    return Describe<SettingsEffectDeepColorizer, FieldList<>>();
}

SettingsEffectDeepColorizer::SettingsEffectDeepColorizer()
{
    neuralMode = 1;
}

} // namespace Ombrel::Proc
