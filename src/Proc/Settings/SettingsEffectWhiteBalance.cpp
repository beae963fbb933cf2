#include "Proc/Settings/SettingsEffectWhiteBalance.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectWhiteBalance::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectWhiteBalance::GetClassId() const
{
    return ClassIdOf<SettingsEffectWhiteBalance>();
}

const RecordSchema& SettingsEffectWhiteBalance::Schema() noexcept
{
    using R = SettingsEffectWhiteBalance;
    return Describe<R, FieldList<FieldDescriptor<&R::m_color>>>();
}

bool SettingsEffectWhiteBalance::IsEmpty() const
{
    return m_color.red == m_color.green && m_color.green == m_color.blue;
}

} // namespace Ombrel::Proc
