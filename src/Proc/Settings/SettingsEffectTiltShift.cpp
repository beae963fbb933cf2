#include "Proc/Settings/SettingsEffectTiltShift.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectTiltShift::CLASS_ID{CLASS_NAME};

extern template struct Reflected<SettingsEffectShapeMask>;

template <> struct Fields<SettingsEffectTiltShift>
{
    using R = SettingsEffectTiltShift;
    using List = FieldList<FieldDescriptor<&R::m_alpha>, FieldDescriptor<&R::m_blur>, FieldDescriptor<&R::m_sharpen>>;
};

template struct Reflected<SettingsEffectTiltShift>;

bool SettingsEffectTiltShift::IsEmpty() const
{
    return *this == Reflected<SettingsEffectTiltShift>::Default();
}

bool SettingsEffectTiltShift::operator==(const SettingsEffectTiltShift& other) const
{
    return Reflected<SettingsEffectTiltShift>::Equal(*this, other);
}

} // namespace Ombrel::Proc
