#include "Proc/Settings/SettingsEffectAlphaExtractor.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectAlphaExtractor::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectAlphaExtractor::GetClassId() const
{
    return ClassIdOf<SettingsEffectAlphaExtractor>();
}

const RecordSchema& SettingsEffectAlphaExtractor::Schema() noexcept
{
    return Describe<SettingsEffectAlphaExtractor, FieldList<>>();
}

} // namespace Ombrel::Proc
