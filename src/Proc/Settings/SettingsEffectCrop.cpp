#include "Proc/Settings/SettingsEffectCrop.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectCrop::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectCrop>
{
    using R = SettingsEffectCrop;
    using List = FieldList<FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>, FieldDescriptor<&R::m_width>,
                           FieldDescriptor<&R::m_height>>;
};

template struct Reflected<SettingsEffectCrop>;

bool SettingsEffectCrop::IsEmpty() const
{
    return *this == Reflected<SettingsEffectCrop>::Default();
}

bool SettingsEffectCrop::operator==(const SettingsEffectCrop& other) const
{
    return Reflected<SettingsEffectCrop>::Equal(*this, other);
}

} // namespace Ombrel::Proc
