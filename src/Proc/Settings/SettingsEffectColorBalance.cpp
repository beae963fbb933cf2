#include "Proc/Settings/SettingsEffectColorBalance.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectColorBalance::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectColorBalance>
{
    using R = SettingsEffectColorBalance;
    using List = FieldList<FieldDescriptor<&R::m_brightness>, FieldDescriptor<&R::m_contrast>,
                           FieldDescriptor<&R::m_saturation>, AccessorDescriptor<"hue", &R::SetHue, &R::GetHue>,
                           FieldDescriptor<&R::m_gamma>, FieldDescriptor<&R::m_gammaRed>, FieldDescriptor<&R::m_gammaGreen>,
                           FieldDescriptor<&R::m_gammaBlue>, FieldDescriptor<&R::m_gammaWeight>>;
};

template struct Reflected<SettingsEffectColorBalance>;

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

bool SettingsEffectColorBalance::operator==(const SettingsEffectColorBalance& other) const
{
    return Reflected<SettingsEffectColorBalance>::Equal(*this, other);
}

} // namespace Ombrel::Proc
