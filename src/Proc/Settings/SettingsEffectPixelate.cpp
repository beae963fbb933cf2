#include "Proc/Settings/SettingsEffectPixelate.h"

#include "Proc/Settings/RecordSource.h"

#include <cmath>

namespace Ombrel::Proc
{
namespace
{

constexpr double TOLERANCE = 1e-5;

} // namespace

OMBREL_EARLY_INIT const std::string SettingsEffectPixelate::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectPixelate::GetClassId() const
{
    return ClassIdOf<SettingsEffectPixelate>();
}

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

const RecordSchema& SettingsEffectPixelate::Schema() noexcept
{
    using R = SettingsEffectPixelate;
    return Describe<R, FieldList<FieldDescriptor<&R::m_strength>, FieldDescriptor<&R::m_methodDownscale>,
                                 FieldDescriptor<&R::m_methodUpscale>>>();
}

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
