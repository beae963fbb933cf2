#include "Proc/Settings/SettingsEffectPixelate.h"

#include "Proc/Reflection/Folds.h"

#include <cmath>

namespace Ombrel::Proc
{
namespace
{

constexpr double TOLERANCE = 1e-5;

} // namespace

const std::string SettingsEffectPixelate::CLASS_ID{CLASS_NAME};

template <> struct EnumNames<SettingsEffectPixelate::ScaleMethod>
{
    using E = SettingsEffectPixelate::ScaleMethod;

    static constexpr EnumNameRow ROWS[] = {
        {"enFastBilinear", E::enFastBilinear},
        {"enBilinear", E::enBilinear},
        {"enBicubic", E::enBicubic},
        {"enX", E::enX},
        {"enPoint", E::enPoint},
        {"enArea", E::enArea},
        {"enBicublin", E::enBicublin},
        {"enGauss", E::enGauss},
        {"enSinc", E::enSinc},
        {"enLanczos", E::enLanczos},
        {"enSpline", E::enSpline},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectPixelate>
{
    using R = SettingsEffectPixelate;
    using List = FieldList<FieldDescriptor<&R::m_strength>, FieldDescriptor<&R::m_methodDownscale>,
                           FieldDescriptor<&R::m_methodUpscale>>;
};

template struct Reflected<SettingsEffectPixelate>;

bool SettingsEffectPixelate::IsEmpty() const
{
    return m_strength < TOLERANCE;
}

bool SettingsEffectPixelate::operator==(const SettingsEffectPixelate& other) const
{
    return std::abs(m_strength - other.m_strength) < TOLERANCE && m_methodDownscale == other.m_methodDownscale &&
           m_methodUpscale == other.m_methodUpscale;
}

} // namespace Ombrel::Proc
