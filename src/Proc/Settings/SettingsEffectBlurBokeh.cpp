#include "Proc/Settings/SettingsEffectBlurBokeh.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectBlurBokeh::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectBlurBokeh::GetClassId() const
{
    return ClassIdOf<SettingsEffectBlurBokeh>();
}

const RecordSchema& SettingsEffectBlurBokeh::Schema() noexcept
{
    using R = SettingsEffectBlurBokeh;
    return Describe<
        R, FieldList<FieldDescriptor<&R::m_bokeh>, FieldDescriptor<&R::m_size>, FieldDescriptor<&R::m_bokehGain>,
                     FieldDescriptor<&R::m_imageGain>, FieldDescriptor<&R::m_strength>, FieldDescriptor<&R::m_threshold>,
                     FieldDescriptor<&R::m_bokehThreshold>, FieldDescriptor<&R::m_imageThreshold>>>();
}

bool SettingsEffectBlurBokeh::IsEmpty() const
{
    return m_bokeh.empty() || m_size == 0.0 || m_strength == 0.0;
}

} // namespace Ombrel::Proc
