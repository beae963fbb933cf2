#include "Proc/Settings/SettingsEffectAdjuster.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectAdjuster::CLASS_ID{CLASS_NAME};

extern template struct Reflected<SettingsEffectColorBalanceAuto>;
extern template struct Reflected<SettingsEffectColorBalance>;
extern template struct Reflected<SettingsEffectVibrance>;
extern template struct Reflected<SettingsEffectDetailsEnhance>;
extern template struct Reflected<SettingsEffectSmartBlur>;

template <> struct Fields<SettingsEffectAdjuster>
{
    using R = SettingsEffectAdjuster;
    using List =
        FieldList<FieldDescriptor<&R::m_colorBalanceAuto>, FieldDescriptor<&R::m_colorBalance>, FieldDescriptor<&R::m_vibrance>,
                  FieldDescriptor<&R::m_detailsEnhance>, FieldDescriptor<&R::m_smartBlur>, FieldDescriptor<&R::m_colorizeHue>,
                  FieldDescriptor<&R::m_colorizeSaturation>, FieldDescriptor<&R::m_colorizeLightness>,
                  FieldDescriptor<&R::m_colorizeIntensity>, FieldDescriptor<&R::m_temperature>,
                  FieldDescriptor<&R::m_temperatureIntensity>, FieldDescriptor<&R::m_brightness>,
                  FieldDescriptor<&R::m_contrast>, FieldDescriptor<&R::m_gamma>, FieldDescriptor<&R::m_hue>,
                  FieldDescriptor<&R::m_hueIntensity>, FieldDescriptor<&R::m_highlights>,
                  FieldDescriptor<&R::m_highlightsIntensity>, FieldDescriptor<&R::m_shadows>,
                  FieldDescriptor<&R::m_shadowsIntensity>>;
};

template struct Reflected<SettingsEffectAdjuster>;

SettingsEffectAdjuster::SettingsEffectAdjuster()
{
    m_smartBlur.SetLumaRadius(100);
    m_smartBlur.SetChromaRadius(100);
}

SettingsEffectAdjuster::~SettingsEffectAdjuster() = default;

bool SettingsEffectAdjuster::operator==(const SettingsEffectAdjuster& other) const
{
    return Reflected<SettingsEffectAdjuster>::Equal(*this, other);
}

} // namespace Ombrel::Proc
