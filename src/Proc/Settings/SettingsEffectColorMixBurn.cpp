#include "Proc/Settings/SettingsEffectColorMixBurn.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectColorMixBurn::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectColorMixBurn::GetClassId() const
{
    return ClassIdOf<SettingsEffectColorMixBurn>();
}

const RecordSchema& SettingsEffectColorMixBurn::Schema() noexcept
{
    using R = SettingsEffectColorMixBurn;
    return Describe<R, FieldList<AccessorDescriptor<"strength", &R::SetStrength, &R::GetStrength>>>();
}

bool SettingsEffectColorMixBurn::IsEmpty() const
{
    return *this == Reflected<SettingsEffectColorMixBurn>::Default();
}

} // namespace Ombrel::Proc
