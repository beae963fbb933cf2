#include "Proc/Settings/SettingsEffectAdjuster.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectAdjuster::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectAdjuster::GetClassId() const
{
    return ClassIdOf<SettingsEffectAdjuster>();
}

const RecordSchema& SettingsEffectAdjuster::Schema() noexcept
{
    using R = SettingsEffectAdjuster;
    return Describe<
        R, FieldList<FieldDescriptor<&R::m_colorBalanceAuto>, FieldDescriptor<&R::m_colorBalance>,
                     FieldDescriptor<&R::m_vibrance>, FieldDescriptor<&R::m_detailsEnhance>, FieldDescriptor<&R::m_smartBlur>,
                     FieldDescriptor<&R::m_colorizeHue>, FieldDescriptor<&R::m_colorizeSaturation>,
                     FieldDescriptor<&R::m_colorizeLightness>, FieldDescriptor<&R::m_colorizeIntensity>,
                     FieldDescriptor<&R::m_temperature>, FieldDescriptor<&R::m_temperatureIntensity>,
                     FieldDescriptor<&R::m_brightness>, FieldDescriptor<&R::m_contrast>, FieldDescriptor<&R::m_gamma>,
                     FieldDescriptor<&R::m_hue>, FieldDescriptor<&R::m_hueIntensity>, FieldDescriptor<&R::m_highlights>,
                     FieldDescriptor<&R::m_highlightsIntensity>, FieldDescriptor<&R::m_shadows>,
                     FieldDescriptor<&R::m_shadowsIntensity>>>();
}

SettingsEffectAdjuster::SettingsEffectAdjuster()
{
    m_smartBlur.SetLumaRadius(100);
    m_smartBlur.SetChromaRadius(100);
}

} // namespace Ombrel::Proc
