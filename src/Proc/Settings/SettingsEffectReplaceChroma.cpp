#include "Proc/Settings/SettingsEffectReplaceChroma.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectReplaceChroma::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectReplaceChroma::GetClassId() const
{
    return ClassIdOf<SettingsEffectReplaceChroma>();
}

const RecordSchema& SettingsEffectReplaceChroma::Schema() noexcept
{
    using R = SettingsEffectReplaceChroma;
    return Describe<
        R, FieldList<FieldDescriptor<&R::m_replaceColor>, FieldDescriptor<&R::m_baseColor>, FieldDescriptor<&R::m_strength>,
                     FieldDescriptor<&R::m_maxValue>, FieldDescriptor<&R::m_minValue>, FieldDescriptor<&R::m_maxThreshold>,
                     FieldDescriptor<&R::m_minThreshold>, FieldDescriptor<&R::m_useBaseColor>, FieldDescriptor<&R::m_keepLuma>,
                     FieldDescriptor<&R::m_correctLuma>, FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>>>();
}

SettingsEffectReplaceChroma::SettingsEffectReplaceChroma(const RgbaColor& replaceColor, const RgbaColor& baseColor)
    : m_replaceColor(replaceColor), m_baseColor(baseColor)
{
}

bool SettingsEffectReplaceChroma::IsEmpty() const
{
    return m_strength == 0;
}

} // namespace Ombrel::Proc
