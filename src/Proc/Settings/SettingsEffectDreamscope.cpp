#include "Proc/Settings/SettingsEffectDreamscope.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDreamscope::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDreamscope::GetClassId() const
{
    return ClassIdOf<SettingsEffectDreamscope>();
}

const RecordSchema& SettingsEffectDreamscope::Schema() noexcept
{
    using R = SettingsEffectDreamscope;
    return Describe<R, FieldList<FieldDescriptor<&R::m_modelName>, FieldDescriptor<&R::m_model64Bit>,
                                 FieldDescriptor<&R::m_workingSize>, FieldDescriptor<&R::m_denoiseChroma>,
                                 FieldDescriptor<&R::m_denoiseBlurRadius>, FieldDescriptor<&R::m_denoiseBlurSigma>>>();
}

bool SettingsEffectDreamscope::IsEmpty() const
{
    return m_modelName.empty() || m_workingSize == 0;
}

bool SettingsEffectDreamscope::operator==(const SettingsEffectDreamscope& other) const
{
    return m_modelName == other.m_modelName && m_model64Bit == other.m_model64Bit && m_workingSize == other.m_workingSize;
}

} // namespace Ombrel::Proc
