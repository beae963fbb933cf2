#include "Proc/Settings/SettingsEffectDreamscope.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDreamscope::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDreamscope>
{
    using R = SettingsEffectDreamscope;
    using List = FieldList<FieldDescriptor<&R::m_modelName>, FieldDescriptor<&R::m_model64Bit>,
                           FieldDescriptor<&R::m_workingSize>, FieldDescriptor<&R::m_denoiseChroma>,
                           FieldDescriptor<&R::m_denoiseBlurRadius>, FieldDescriptor<&R::m_denoiseBlurSigma>>;
};

template struct Reflected<SettingsEffectDreamscope>;

bool SettingsEffectDreamscope::IsEmpty() const
{
    return m_modelName.empty() || m_workingSize == 0;
}

bool SettingsEffectDreamscope::operator==(const SettingsEffectDreamscope& other) const
{
    return m_modelName == other.m_modelName && m_model64Bit == other.m_model64Bit && m_workingSize == other.m_workingSize;
}

} // namespace Ombrel::Proc
