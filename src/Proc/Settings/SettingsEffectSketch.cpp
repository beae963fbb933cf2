#include "Proc/Settings/SettingsEffectSketch.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectSketch::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectSketch::GetClassId() const
{
    return ClassIdOf<SettingsEffectSketch>();
}

const RecordSchema& SettingsEffectSketch::Schema() noexcept
{
    using R = SettingsEffectSketch;
    return Describe<R, FieldList<FieldDescriptor<&R::m_color>, FieldDescriptor<&R::m_noise>, FieldDescriptor<&R::m_motion>,
                                 FieldDescriptor<&R::m_charcoal>, FieldDescriptor<&R::m_compose>>>();
}

SettingsEffectSketch::SettingsEffectSketch()
{
    m_motion.m_mode = SettingsEffectBlurRadial::BlurRadialMode::Linear;
    m_motion.m_strength = 0.1;
    m_motion.m_angle = 135.0;
    m_charcoal.m_radius = 3;
    m_charcoal.m_sigma = 3.0;
    m_compose.m_operator = SettingsEffectCompose::CompositeOperator::ColorDodgeCompositeOp;
}

} // namespace Ombrel::Proc
