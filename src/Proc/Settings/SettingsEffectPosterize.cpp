#include "Proc/Settings/SettingsEffectPosterize.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectPosterize::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectPosterize::GetClassId() const
{
    return ClassIdOf<SettingsEffectPosterize>();
}

const RecordSchema& SettingsEffectPosterize::Schema() noexcept
{
    using R = SettingsEffectPosterize;
    return Describe<R, FieldList<AccessorDescriptor<"isPal", &R::SetIsPal, &R::GetIsPal>,
                                 AccessorDescriptor<"seed", &R::SetSeed, &R::GetSeed>,
                                 AccessorDescriptor<"colors", &R::SetColorsNumber, &R::GetColorsNumber>,
                                 AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>>();
}

bool SettingsEffectPosterize::IsEmpty() const
{
    return *this == Reflected<SettingsEffectPosterize>::Default();
}

} // namespace Ombrel::Proc
