#include "Proc/Settings/SettingsEffectSketch.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectSketch::CLASS_ID{CLASS_NAME};

extern template struct Reflected<SettingsEffectNoiseVideo>;
extern template struct Reflected<SettingsEffectBlurRadial>;
extern template struct Reflected<SettingsEffectCharcoal>;
extern template struct Reflected<SettingsEffectCompose>;

template <> struct Fields<SettingsEffectSketch>
{
    using R = SettingsEffectSketch;
    using List = FieldList<FieldDescriptor<&R::m_color>, FieldDescriptor<&R::m_noise>, FieldDescriptor<&R::m_motion>,
                           FieldDescriptor<&R::m_charcoal>, FieldDescriptor<&R::m_compose>>;
};

template struct Reflected<SettingsEffectSketch>;

SettingsEffectSketch::SettingsEffectSketch()
{
    m_motion.m_mode = SettingsEffectBlurRadial::BlurRadialMode::Linear;
    m_motion.m_strength = 0.1;
    m_motion.m_angle = 135.0;
    m_charcoal.m_radius = 3;
    m_charcoal.m_sigma = 3.0;
    m_compose.m_operator = SettingsEffectCompose::CompositeOperator::ColorDodgeCompositeOp;
}

SettingsEffectSketch::~SettingsEffectSketch() = default;

bool SettingsEffectSketch::operator==(const SettingsEffectSketch& other) const
{
    return Reflected<SettingsEffectSketch>::Equal(*this, other);
}

} // namespace Ombrel::Proc
