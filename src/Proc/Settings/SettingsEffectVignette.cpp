#include "Proc/Settings/SettingsEffectVignette.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectVignette::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectVignette::GetClassId() const
{
    return ClassIdOf<SettingsEffectVignette>();
}

const RecordSchema& SettingsEffectVignette::Schema() noexcept
{
    using R = SettingsEffectVignette;
    return Describe<R, FieldList<FieldDescriptor<&R::m_alpha>, FieldDescriptor<&R::m_color>>>();
}

SettingsEffectVignette::SettingsEffectVignette()
{
    m_alpha.m_foreground = 0;
    m_alpha.m_background = 255;
}

bool SettingsEffectVignette::IsEmpty() const
{
    return m_alpha.IsForegroundOnly();
}

} // namespace Ombrel::Proc
