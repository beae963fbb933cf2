#include "Proc/Settings/SettingsEffectReplaceChroma.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectReplaceChroma::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectReplaceChroma>
{
    using R = SettingsEffectReplaceChroma;
    using List =
        FieldList<FieldDescriptor<&R::m_replaceColor>, FieldDescriptor<&R::m_baseColor>, FieldDescriptor<&R::m_strength>,
                  FieldDescriptor<&R::m_maxValue>, FieldDescriptor<&R::m_minValue>, FieldDescriptor<&R::m_maxThreshold>,
                  FieldDescriptor<&R::m_minThreshold>, FieldDescriptor<&R::m_useBaseColor>, FieldDescriptor<&R::m_keepLuma>,
                  FieldDescriptor<&R::m_correctLuma>, FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>>;
};

template struct Reflected<SettingsEffectReplaceChroma>;

SettingsEffectReplaceChroma::SettingsEffectReplaceChroma(const RgbaColor& replaceColor, const RgbaColor& baseColor)
    : m_replaceColor(replaceColor), m_baseColor(baseColor)
{
}

bool SettingsEffectReplaceChroma::IsEmpty() const
{
    return m_strength == 0;
}

bool SettingsEffectReplaceChroma::operator==(const SettingsEffectReplaceChroma& other) const
{
    return Reflected<SettingsEffectReplaceChroma>::Equal(*this, other);
}

} // namespace Ombrel::Proc
