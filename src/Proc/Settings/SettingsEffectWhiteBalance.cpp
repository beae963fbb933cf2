#include "Proc/Settings/SettingsEffectWhiteBalance.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectWhiteBalance::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectWhiteBalance>
{
    using R = SettingsEffectWhiteBalance;
    using List = FieldList<FieldDescriptor<&R::m_color>>;
};

template struct Reflected<SettingsEffectWhiteBalance>;

bool SettingsEffectWhiteBalance::IsEmpty() const
{
    return m_color.red == m_color.green && m_color.green == m_color.blue;
}

bool SettingsEffectWhiteBalance::operator==(const SettingsEffectWhiteBalance& other) const
{
    return Reflected<SettingsEffectWhiteBalance>::Equal(*this, other);
}

} // namespace Ombrel::Proc
