#include "Proc/Settings/SettingsEffectDeepAutoRetoucher.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDeepAutoRetoucher::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDeepAutoRetoucher::GetClassId() const
{
    return ClassIdOf<SettingsEffectDeepAutoRetoucher>();
}

const RecordSchema& SettingsEffectDeepAutoRetoucher::Schema() noexcept
{
    return Describe<SettingsEffectDeepAutoRetoucher, FieldList<>>();
}

} // namespace Ombrel::Proc
