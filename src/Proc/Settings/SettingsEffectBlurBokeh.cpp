#include "Proc/Settings/SettingsEffectBlurBokeh.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectBlurBokeh::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectBlurBokeh>
{
    using R = SettingsEffectBlurBokeh;
    using List = FieldList<FieldDescriptor<&R::m_bokeh>, FieldDescriptor<&R::m_size>, FieldDescriptor<&R::m_bokehGain>,
                           FieldDescriptor<&R::m_imageGain>, FieldDescriptor<&R::m_strength>, FieldDescriptor<&R::m_threshold>,
                           FieldDescriptor<&R::m_bokehThreshold>, FieldDescriptor<&R::m_imageThreshold>>;
};

template struct Reflected<SettingsEffectBlurBokeh>;

bool SettingsEffectBlurBokeh::IsEmpty() const
{
    return m_bokeh.empty() || m_size == 0.0 || m_strength == 0.0;
}

bool SettingsEffectBlurBokeh::operator==(const SettingsEffectBlurBokeh& other) const
{
    return Reflected<SettingsEffectBlurBokeh>::Equal(*this, other);
}

} // namespace Ombrel::Proc
