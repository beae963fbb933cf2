#include "Proc/Settings/SettingsEffectHalfTone.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectHalfTone::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectHalfTone::GetClassId() const
{
    return ClassIdOf<SettingsEffectHalfTone>();
}

const RecordSchema& SettingsEffectHalfTone::Schema() noexcept
{
    using R = SettingsEffectHalfTone;
    return Describe<R, FieldList<AccessorDescriptor<"backgroundColor", &R::SetBackgroundColor, &R::GetBackgroundColor>,
                                 AccessorDescriptor<"dotColor", &R::SetDotColor, &R::GetDotColor>,
                                 AccessorDescriptor<"colourSize", &R::SetColourSize, &R::GetColourSize>, // as stored
                                 AccessorDescriptor<"dotSize", &R::SetDotSize, &R::GetDotSize>,
                                 AccessorDescriptor<"threshold", &R::SetThreshold, &R::GetThreshold>,
                                 AccessorDescriptor<"angle", &R::SetAngle, &R::GetAngle>>>();
}

bool SettingsEffectHalfTone::IsEmpty() const
{
    return *this == Reflected<SettingsEffectHalfTone>::Default();
}

} // namespace Ombrel::Proc
