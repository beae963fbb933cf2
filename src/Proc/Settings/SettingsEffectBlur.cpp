#include "Proc/Settings/SettingsEffectBlur.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/PixFmtNames.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectBlur::CLASS_ID{CLASS_NAME};

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

template <> struct Fields<SettingsEffectBlur>
{
    using R = SettingsEffectBlur;
    using List = FieldList<FieldDescriptor<&R::m_algorithm>, FieldDescriptor<&R::m_scaleType>,
                           FieldDescriptor<&R::m_pixelFormat>, FieldDescriptor<&R::m_kernelLength>,
                           FieldDescriptor<&R::m_iterations>, FieldDescriptor<&R::m_planesMask>, FieldDescriptor<&R::m_devX>,
                           FieldDescriptor<&R::m_devY>, FieldDescriptor<&R::m_scaleX>, FieldDescriptor<&R::m_scaleY>>;
};

template struct Reflected<SettingsEffectBlur>;

bool SettingsEffectBlur::IsEmpty() const
{
    return *this == Reflected<SettingsEffectBlur>::Default();
}

bool SettingsEffectBlur::operator==(const SettingsEffectBlur& other) const
{
    return Reflected<SettingsEffectBlur>::Equal(*this, other);
}

} // namespace Ombrel::Proc
