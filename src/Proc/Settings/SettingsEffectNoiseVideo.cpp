#include "Proc/Settings/SettingsEffectNoiseVideo.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectNoiseVideo::CLASS_ID{CLASS_NAME};

template <> struct EnumNames<SettingsEffectNoiseVideo::Method>
{
    using E = SettingsEffectNoiseVideo::Method;

    static constexpr EnumNameRow ROWS[] = {
        {"Gaussian", E::Gaussian},   {"MultiplicativeGaussianNoise", E::MultiplicativeGaussianNoise},
        {"Uniform", E::Uniform},     {"Impulse", E::Impulse},
        {"Laplacian", E::Laplacian}, {"Poisson", E::Poisson},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectNoiseVideo>
{
    using R = SettingsEffectNoiseVideo;
    using List = FieldList<FieldDescriptor<&R::m_method>, FieldDescriptor<&R::m_seed>, FieldDescriptor<&R::m_strength>>;
};

template struct Reflected<SettingsEffectNoiseVideo>;

bool SettingsEffectNoiseVideo::IsEmpty() const
{
    return *this == Reflected<SettingsEffectNoiseVideo>::Default();
}

bool SettingsEffectNoiseVideo::operator==(const SettingsEffectNoiseVideo& other) const
{
    return Reflected<SettingsEffectNoiseVideo>::Equal(*this, other);
}

} // namespace Ombrel::Proc
