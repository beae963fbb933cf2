#include "Proc/Settings/SettingsEffectFlip.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectFlip::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectFlip>
{
    using R = SettingsEffectFlip;
    using List = FieldList<FieldDescriptor<&R::m_horizontal>, FieldDescriptor<&R::m_vertical>>;
};

template struct Reflected<SettingsEffectFlip>;

bool SettingsEffectFlip::IsEmpty() const
{
    return *this == Reflected<SettingsEffectFlip>::Default();
}

bool SettingsEffectFlip::operator==(const SettingsEffectFlip& other) const
{
    return Reflected<SettingsEffectFlip>::Equal(*this, other);
}

} // namespace Ombrel::Proc
