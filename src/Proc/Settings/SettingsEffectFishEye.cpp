#include "Proc/Settings/SettingsEffectFishEye.h"

#include "Proc/Settings/RecordSource.h"

#include <cmath>

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectFishEye::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectFishEye::GetClassId() const
{
    return ClassIdOf<SettingsEffectFishEye>();
}

const RecordSchema& SettingsEffectFishEye::Schema() noexcept
{
    using R = SettingsEffectFishEye;
    return Describe<R, FieldList<AccessorDescriptor<"deviation", &R::SetDeviation, &R::GetDeviation>,
                                 AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>>();
}

bool SettingsEffectFishEye::IsEmpty() const
{
    return *this == Reflected<SettingsEffectFishEye>::Default();
}

void SettingsEffectFishEye::SetDeviation(double value)
{
    m_deviationFactor = value;
    if (m_intensity == 0.0f || !std::isfinite(m_intensity))
    {
        return;
    }
    const auto intensity = static_cast<double>(m_intensity);
    const double factor = value / intensity;
    if (!std::isfinite(value))
    {
        m_deviationFactor = factor;
    }
    else if (std::isfinite(factor))
    {
        // A quotient that was rounded away from 0 may give a product that no longer fits.
        m_deviationFactor = std::isfinite(factor * intensity) ? factor : std::nextafter(factor, 0.0);
    }
}

// The field list knows the product alone, which at intensity 0 says nothing of the factor.
bool SettingsEffectFishEye::operator==(const SettingsEffectFishEye& other) const
{
    return m_deviationFactor == other.m_deviationFactor && m_intensity == other.m_intensity;
}

} // namespace Ombrel::Proc
