#include "Proc/Settings/SettingsEffectHalfTone.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectHalfTone::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectHalfTone>
{
    using R = SettingsEffectHalfTone;
    using List = FieldList<FieldDescriptor<&R::m_backgroundColor>, FieldDescriptor<&R::m_dotColor>,
                           AccessorDescriptor<"colourSize", &R::SetColourSize, &R::GetColourSize>, // as stored
                           AccessorDescriptor<"dotSize", &R::SetDotSize, &R::GetDotSize>,
                           AccessorDescriptor<"threshold", &R::SetThreshold, &R::GetThreshold>,
                           AccessorDescriptor<"angle", &R::SetAngle, &R::GetAngle>>;
};

template struct Reflected<SettingsEffectHalfTone>;

bool SettingsEffectHalfTone::IsEmpty() const
{
    return *this == Reflected<SettingsEffectHalfTone>::Default();
}

bool SettingsEffectHalfTone::operator==(const SettingsEffectHalfTone& other) const
{
    return Reflected<SettingsEffectHalfTone>::Equal(*this, other);
}

} // namespace Ombrel::Proc
