#include "Proc/Settings/SettingsEffectVignetteFilter.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectVignetteFilter::CLASS_ID{CLASS_NAME};

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

template <> struct Fields<SettingsEffectVignetteFilter>
{
    using R = SettingsEffectVignetteFilter;
    using List = FieldList<FieldDescriptor<&R::m_form>, FieldDescriptor<&R::m_smooth>, FieldDescriptor<&R::m_aspect>,
                           FieldDescriptor<&R::m_x0>, FieldDescriptor<&R::m_y0>, FieldDescriptor<&R::m_RInternal>,
                           FieldDescriptor<&R::m_RExternal>, FieldDescriptor<&R::m_color>,
                           AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>;
};

template struct Reflected<SettingsEffectVignetteFilter>;

bool SettingsEffectVignetteFilter::IsEmpty() const
{
    return *this == Reflected<SettingsEffectVignetteFilter>::Default();
}

bool SettingsEffectVignetteFilter::operator==(const SettingsEffectVignetteFilter& other) const
{
    return Reflected<SettingsEffectVignetteFilter>::Equal(*this, other);
}

} // namespace Ombrel::Proc
