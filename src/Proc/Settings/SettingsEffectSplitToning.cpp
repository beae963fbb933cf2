#include "Proc/Settings/SettingsEffectSplitToning.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectSplitToning::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectSplitToning::GetClassId() const
{
    return ClassIdOf<SettingsEffectSplitToning>();
}

const RecordSchema& SettingsEffectSplitToning::Schema() noexcept
{
    using R = SettingsEffectSplitToning;
    return Describe<R, FieldList<FieldDescriptor<&R::m_colorFirst>, FieldDescriptor<&R::m_colorSecond>>>();
}

} // namespace Ombrel::Proc
