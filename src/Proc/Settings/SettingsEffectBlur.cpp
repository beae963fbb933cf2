#include "Proc/Settings/SettingsEffectBlur.h"

#include "Proc/Settings/PixFmtNames.h"
#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectBlur::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectBlur::GetClassId() const
{
    return ClassIdOf<SettingsEffectBlur>();
}

template <> struct EnumNames<SettingsEffectBlur::Algorithm>
{
    using E = SettingsEffectBlur::Algorithm;

    static constexpr EnumNameRow ROWS[] = {
        {"Homogeneous", E::Homogeneous},
        {"Gaussian", E::Gaussian},
        {"Median", E::Median},
        {"Bilateral", E::Bilateral},
    };
    // An unknown algorithm is the default one, not the one of value 0.
    static constexpr EnumNameTable TABLE{ROWS, static_cast<std::int32_t>(E::Gaussian)};
};

template <> struct EnumNames<SettingsEffectBlur::BlurScaleType>
{
    using E = SettingsEffectBlur::BlurScaleType;

    static constexpr EnumNameRow ROWS[] = {
        {"Absolute", E::Absolute},
        {"Relative", E::Relative},
        {"RelativeMax", E::RelativeMax},
        {"RelativeMin", E::RelativeMin},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectBlur::Schema() noexcept
{
    using R = SettingsEffectBlur;
    return Describe<
        R, FieldList<AccessorDescriptor<"algorithm", &R::SetAlgorithm, &R::GetAlgorithm>,
                     AccessorDescriptor<"scaleType", &R::SetScaleType, &R::GetScaleType>,
                     AccessorDescriptor<"pixelFormat", &R::SetPixelFormat, &R::GetPixelFormat>,
                     AccessorDescriptor<"kernelLength", &R::SetKernelLength, &R::GetKernelLength>,
                     AccessorDescriptor<"iterations", &R::SetIterations, &R::GetIterations>,
                     AccessorDescriptor<"planesMask", &R::SetPlanesMask, &R::GetPlanesMask>,
                     AccessorDescriptor<"devX", &R::SetDevX, &R::GetDevX>, AccessorDescriptor<"devY", &R::SetDevY, &R::GetDevY>,
                     AccessorDescriptor<"scaleX", &R::SetScaleX, &R::GetScaleX>,
                     AccessorDescriptor<"scaleY", &R::SetScaleY, &R::GetScaleY>>>();
}

bool SettingsEffectBlur::IsEmpty() const
{
    return *this == Reflected<SettingsEffectBlur>::Default();
}

} // namespace Ombrel::Proc
