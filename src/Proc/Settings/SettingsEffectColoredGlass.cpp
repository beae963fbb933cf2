#include "Proc/Settings/SettingsEffectColoredGlass.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectColoredGlass::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectColoredGlass>
{
    using R = SettingsEffectColoredGlass;
    using List = FieldList<FieldDescriptor<&R::m_color>, FieldDescriptor<&R::m_alpha>>;
};

template struct Reflected<SettingsEffectColoredGlass>;

bool SettingsEffectColoredGlass::IsEmpty() const
{
    return m_alpha == 0;
}

bool SettingsEffectColoredGlass::operator==(const SettingsEffectColoredGlass& other) const
{
    return Reflected<SettingsEffectColoredGlass>::Equal(*this, other);
}

} // namespace Ombrel::Proc
