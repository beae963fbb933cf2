#include "Proc/Settings/SettingsEffectEmboss.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectEmboss::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectEmboss::GetClassId() const
{
    return ClassIdOf<SettingsEffectEmboss>();
}

const RecordSchema& SettingsEffectEmboss::Schema() noexcept
{
    using R = SettingsEffectEmboss;
    return Describe<R, FieldList<AccessorDescriptor<"x", &R::SetX, &R::GetX>, AccessorDescriptor<"y", &R::SetY, &R::GetY>,
                                 AccessorDescriptor<"colored", &R::SetColored, &R::GetColored>>>();
}

bool SettingsEffectEmboss::IsEmpty() const
{
    return *this == Reflected<SettingsEffectEmboss>::Default();
}

} // namespace Ombrel::Proc
