#include "Proc/Settings/SettingsEffectBiColorToning.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectBiColorToning::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectBiColorToning::GetClassId() const
{
    return ClassIdOf<SettingsEffectBiColorToning>();
}

const RecordSchema& SettingsEffectBiColorToning::Schema() noexcept
{
    using R = SettingsEffectBiColorToning;
    return Describe<R, FieldList<FieldDescriptor<&R::m_colorFirst>, FieldDescriptor<&R::m_colorSecond>>>();
}

} // namespace Ombrel::Proc
