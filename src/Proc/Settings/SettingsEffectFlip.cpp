#include "Proc/Settings/SettingsEffectFlip.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectFlip::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectFlip::GetClassId() const
{
    return ClassIdOf<SettingsEffectFlip>();
}

const RecordSchema& SettingsEffectFlip::Schema() noexcept
{
    using R = SettingsEffectFlip;
    return Describe<R, FieldList<AccessorDescriptor<"horizontal", &R::SetHorizontal, &R::GetHorizontal>,
                                 AccessorDescriptor<"vertical", &R::SetVertical, &R::GetVertical>>>();
}

bool SettingsEffectFlip::IsEmpty() const
{
    return *this == Reflected<SettingsEffectFlip>::Default();
}

} // namespace Ombrel::Proc
