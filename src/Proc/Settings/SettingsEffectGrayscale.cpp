#include "Proc/Settings/SettingsEffectGrayscale.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectGrayscale::CLASS_ID{CLASS_NAME};

template <> struct EnumNames<SettingsEffectGrayscale::GrayscaleMethod>
{
    using E = SettingsEffectGrayscale::GrayscaleMethod;

    static constexpr EnumNameRow ROWS[] = {
        {"Empty", E::Empty},           {"Average", E::Average},
        {"Brightness", E::Brightness}, {"Lightness", E::Lightness},
        {"MeanSquare", E::MeanSquare}, {"MeanRootSquare", E::MeanRootSquare},
        {"Rec601Luma", E::Rec601Luma}, {"Rec601Luminance", E::Rec601Luminance},
        {"Rec709Luma", E::Rec709Luma}, {"Rec709Luminance", E::Rec709Luminance},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectGrayscale>
{
    using R = SettingsEffectGrayscale;
    using List = FieldList<FieldDescriptor<&R::m_method>>;
};

template struct Reflected<SettingsEffectGrayscale>;

bool SettingsEffectGrayscale::IsEmpty() const
{
    return m_method == GrayscaleMethod::Empty;
}

bool SettingsEffectGrayscale::operator==(const SettingsEffectGrayscale& other) const
{
    return Reflected<SettingsEffectGrayscale>::Equal(*this, other);
}

} // namespace Ombrel::Proc
