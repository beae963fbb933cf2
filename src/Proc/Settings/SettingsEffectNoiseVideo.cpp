#include "Proc/Settings/SettingsEffectNoiseVideo.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectNoiseVideo::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectNoiseVideo::GetClassId() const
{
    return ClassIdOf<SettingsEffectNoiseVideo>();
}

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

const RecordSchema& SettingsEffectNoiseVideo::Schema() noexcept
{
    using R = SettingsEffectNoiseVideo;
    return Describe<R, FieldList<AccessorDescriptor<"method", &R::SetMethod, &R::GetMethod>,
                                 AccessorDescriptor<"seed", &R::SetSeed, &R::GetSeed>,
                                 AccessorDescriptor<"strength", &R::SetStrength, &R::GetStrength>>>();
}

bool SettingsEffectNoiseVideo::IsEmpty() const
{
    return *this == Reflected<SettingsEffectNoiseVideo>::Default();
}

} // namespace Ombrel::Proc
