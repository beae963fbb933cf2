#include "Proc/Settings/SettingsEffectGIMPColorCorrection.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectGIMPColorCorrection::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectGIMPColorCorrection::GetClassId() const
{
    return ClassIdOf<SettingsEffectGIMPColorCorrection>();
}

const RecordSchema& SettingsEffectGIMPColorCorrection::Schema() noexcept
{
    using R = SettingsEffectGIMPColorCorrection;
    return Describe<R, FieldList<AccessorDescriptor<"brightness", &R::SetBrightness, &R::GetBrightness>,
                                 AccessorDescriptor<"contrast", &R::SetContrast, &R::GetContrast>>>();
}

bool SettingsEffectGIMPColorCorrection::IsEmpty() const
{
    return *this == Reflected<SettingsEffectGIMPColorCorrection>::Default();
}

} // namespace Ombrel::Proc
