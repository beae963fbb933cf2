#include "Proc/Settings/SettingsEffectVignette.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectVignette::CLASS_ID{CLASS_NAME};

extern template struct Reflected<SettingsEffectShapeMask>;

template <> struct Fields<SettingsEffectVignette>
{
    using R = SettingsEffectVignette;
    using List = FieldList<FieldDescriptor<&R::m_alpha>, FieldDescriptor<&R::m_color>>;
};

template struct Reflected<SettingsEffectVignette>;

SettingsEffectVignette::SettingsEffectVignette()
{
    m_alpha.m_foreground = 0;
    m_alpha.m_background = 255;
}

bool SettingsEffectVignette::IsEmpty() const
{
    return m_alpha.IsForegroundOnly();
}

bool SettingsEffectVignette::operator==(const SettingsEffectVignette& other) const
{
    return Reflected<SettingsEffectVignette>::Equal(*this, other);
}

} // namespace Ombrel::Proc
