#include "Proc/Settings/SettingsEffectOilPaint.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/ScaledInteger.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectOilPaint::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectOilPaint>
{
    using R = SettingsEffectOilPaint;
    using List = FieldList<AccessorDescriptor<"radius", &R::SetRadius, &R::GetRadius>,
                           AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>;
};

template struct Reflected<SettingsEffectOilPaint>;

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
