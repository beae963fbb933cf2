#include "Proc/Settings/SettingsEffectSharpen.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectSharpen::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectSharpen::GetClassId() const
{
    return ClassIdOf<SettingsEffectSharpen>();
}

const RecordSchema& SettingsEffectSharpen::Schema() noexcept
{
    using R = SettingsEffectSharpen;
    return Describe<R, FieldList<AccessorDescriptor<"level", &R::SetLevel, &R::GetLevel>>>();
}

bool SettingsEffectSharpen::IsEmpty() const
{
    return *this == Reflected<SettingsEffectSharpen>::Default();
}

void SettingsEffectSharpen::SetLevel(double value)
{
    m_level = value;
}

} // namespace Ombrel::Proc
