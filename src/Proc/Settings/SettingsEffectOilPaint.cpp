#include "Proc/Settings/SettingsEffectOilPaint.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/ScaledInteger.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectOilPaint::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectOilPaint::GetClassId() const
{
    return ClassIdOf<SettingsEffectOilPaint>();
}

const RecordSchema& SettingsEffectOilPaint::Schema() noexcept
{
    using R = SettingsEffectOilPaint;
    return Describe<R, FieldList<AccessorDescriptor<"radius", &R::SetRadius, &R::GetRadius>,
                                 AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>>();
}

bool SettingsEffectOilPaint::IsEmpty() const
{
    return *this == Reflected<SettingsEffectOilPaint>::Default();
}

std::int32_t SettingsEffectOilPaint::GetRadius() const
{
    return ScaledInteger(m_radius, m_intensity);
}

// The field list knows the product alone.
bool SettingsEffectOilPaint::operator==(const SettingsEffectOilPaint& other) const
{
    return m_radius == other.m_radius && m_intensity == other.m_intensity;
}

} // namespace Ombrel::Proc
