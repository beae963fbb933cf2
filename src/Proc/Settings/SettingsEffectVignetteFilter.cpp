#include "Proc/Settings/SettingsEffectVignetteFilter.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectVignetteFilter::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectVignetteFilter::GetClassId() const
{
    return ClassIdOf<SettingsEffectVignetteFilter>();
}

template <> struct EnumNames<SettingsEffectVignetteFilter::Form>
{
    using E = SettingsEffectVignetteFilter::Form;

    static constexpr EnumNameRow ROWS[] = {
        {"enForm1", E::enForm1}, {"enForm2", E::enForm2}, {"enForm3", E::enForm3},
        {"enForm4", E::enForm4}, {"enForm5", E::enForm5}, {"enForm6", E::enForm6},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct EnumNames<SettingsEffectVignetteFilter::Smooth>
{
    using E = SettingsEffectVignetteFilter::Smooth;

    static constexpr EnumNameRow ROWS[] = {
        {"enLin", E::enLin},
        {"enCos", E::enCos},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct EnumNames<SettingsEffectVignetteFilter::Aspect>
{
    using E = SettingsEffectVignetteFilter::Aspect;

    static constexpr EnumNameRow ROWS[] = {
        {"enEql", E::enEql},
        {"enOgn", E::enOgn},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectVignetteFilter::Schema() noexcept
{
    using R = SettingsEffectVignetteFilter;
    return Describe<R, FieldList<AccessorDescriptor<"form", &R::SetForm, &R::GetForm>,
                                 AccessorDescriptor<"smooth", &R::SetSmooth, &R::GetSmooth>,
                                 AccessorDescriptor<"aspect", &R::SetAspect, &R::GetAspect>,
                                 AccessorDescriptor<"x0", &R::SetX0, &R::GetX0>, AccessorDescriptor<"y0", &R::SetY0, &R::GetY0>,
                                 AccessorDescriptor<"RInternal", &R::SetRInternal, &R::GetRInternal>,
                                 AccessorDescriptor<"RExternal", &R::SetRExternal, &R::GetRExternal>,
                                 AccessorDescriptor<"color", &R::SetColor, &R::GetColor>,
                                 AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>>();
}

bool SettingsEffectVignetteFilter::IsEmpty() const
{
    return *this == Reflected<SettingsEffectVignetteFilter>::Default();
}

} // namespace Ombrel::Proc
