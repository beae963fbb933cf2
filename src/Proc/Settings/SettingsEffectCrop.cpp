#include "Proc/Settings/SettingsEffectCrop.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectCrop::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectCrop::GetClassId() const
{
    return ClassIdOf<SettingsEffectCrop>();
}

const RecordSchema& SettingsEffectCrop::Schema() noexcept
{
    using R = SettingsEffectCrop;
    return Describe<R, FieldList<AccessorDescriptor<"x", &R::SetX, &R::GetX>, AccessorDescriptor<"y", &R::SetY, &R::GetY>,
                                 AccessorDescriptor<"width", &R::SetWidth, &R::GetWidth>,
                                 AccessorDescriptor<"height", &R::SetHeight, &R::GetHeight>>>();
}

bool SettingsEffectCrop::IsEmpty() const
{
    return *this == Reflected<SettingsEffectCrop>::Default();
}

} // namespace Ombrel::Proc
