#include "Proc/Settings/SettingsEffectColorBalance.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectColorBalance::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectColorBalance::GetClassId() const
{
    return ClassIdOf<SettingsEffectColorBalance>();
}

const RecordSchema& SettingsEffectColorBalance::Schema() noexcept
{
    using R = SettingsEffectColorBalance;
    return Describe<
        R, FieldList<AccessorDescriptor<"brightness", &R::SetBrightness, &R::GetBrightness>,
                     AccessorDescriptor<"contrast", &R::SetContrast, &R::GetContrast>,
                     AccessorDescriptor<"saturation", &R::SetSaturation, &R::GetSaturation>,
                     AccessorDescriptor<"hue", &R::SetHue, &R::GetHue>, AccessorDescriptor<"gamma", &R::SetGamma, &R::GetGamma>,
                     AccessorDescriptor<"gammaRed", &R::SetGammaRed, &R::GetGammaRed>,
                     AccessorDescriptor<"gammaGreen", &R::SetGammaGreen, &R::GetGammaGreen>,
                     AccessorDescriptor<"gammaBlue", &R::SetGammaBlue, &R::GetGammaBlue>,
                     AccessorDescriptor<"gammaWeight", &R::SetGammaWeight, &R::GetGammaWeight>>>();
}

bool SettingsEffectColorBalance::IsEmpty() const
{
    return *this == Reflected<SettingsEffectColorBalance>::Default();
}

void SettingsEffectColorBalance::SetHue(std::int32_t value)
{
    if (value == 180)
    {
        m_hue = 180;
        return;
    }
    const std::int64_t turned = (std::int64_t{value} + 180) % 360; // 64 bits: the sum may not fit 32
    m_hue = static_cast<std::int32_t>((turned + 360) % 360 - 180);
}

} // namespace Ombrel::Proc
