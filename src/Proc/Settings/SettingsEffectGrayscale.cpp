#include "Proc/Settings/SettingsEffectGrayscale.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectGrayscale::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectGrayscale::GetClassId() const
{
    return ClassIdOf<SettingsEffectGrayscale>();
}

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

const RecordSchema& SettingsEffectGrayscale::Schema() noexcept
{
    using R = SettingsEffectGrayscale;
    return Describe<R, FieldList<FieldDescriptor<&R::m_method>>>();
}

bool SettingsEffectGrayscale::IsEmpty() const
{
    return m_method == GrayscaleMethod::Empty;
}

} // namespace Ombrel::Proc
