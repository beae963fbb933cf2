#include "Proc/Settings/SettingsEffectColoredGlass.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectColoredGlass::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectColoredGlass::GetClassId() const
{
    return ClassIdOf<SettingsEffectColoredGlass>();
}

const RecordSchema& SettingsEffectColoredGlass::Schema() noexcept
{
    using R = SettingsEffectColoredGlass;
    return Describe<R, FieldList<FieldDescriptor<&R::m_color>, FieldDescriptor<&R::m_alpha>>>();
}

bool SettingsEffectColoredGlass::IsEmpty() const
{
    return m_alpha == 0;
}

} // namespace Ombrel::Proc
