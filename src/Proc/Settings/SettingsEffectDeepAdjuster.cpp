#include "Proc/Settings/SettingsEffectDeepAdjuster.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDeepAdjuster::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDeepAdjuster::GetClassId() const
{
    return ClassIdOf<SettingsEffectDeepAdjuster>();
}

const RecordSchema& SettingsEffectDeepAdjuster::Schema() noexcept
{
    using R = SettingsEffectDeepAdjuster;
    return Describe<
        R, FieldList<FieldDescriptor<&R::m_brightness>, FieldDescriptor<&R::m_contrast>, FieldDescriptor<&R::m_vibrance>,
                     FieldDescriptor<&R::m_exposure>, FieldDescriptor<&R::m_shadows>, FieldDescriptor<&R::m_hightlights>>>();
}

} // namespace Ombrel::Proc
