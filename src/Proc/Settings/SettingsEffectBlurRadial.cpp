#include "Proc/Settings/SettingsEffectBlurRadial.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectBlurRadial::CLASS_ID{CLASS_NAME};

template <> struct EnumNames<SettingsEffectBlurRadial::BlurRadialMode>
{
    using E = SettingsEffectBlurRadial::BlurRadialMode;

    static constexpr EnumNameRow ROWS[] = {
        {"Radial", E::Radial},
        {"Linear", E::Linear},
        {"Custom", E::Custom},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectBlurRadial::TracePoint>
{
    using R = SettingsEffectBlurRadial::TracePoint;
    using List = FieldList<FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>>;
};

template struct Reflected<SettingsEffectBlurRadial::TracePoint>;

template <> struct Fields<SettingsEffectBlurRadial>
{
    using R = SettingsEffectBlurRadial;
    using List = FieldList<FieldDescriptor<&R::m_mode>, FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>,
                           FieldDescriptor<&R::m_strength>, FieldDescriptor<&R::m_angle>, FieldDescriptor<&R::m_trace>>;
};

template struct Reflected<SettingsEffectBlurRadial>;

bool SettingsEffectBlurRadial::IsEmpty() const
{
    return *this == Reflected<SettingsEffectBlurRadial>::Default();
}

bool SettingsEffectBlurRadial::operator==(const SettingsEffectBlurRadial& other) const
{
    return Reflected<SettingsEffectBlurRadial>::Equal(*this, other);
}

} // namespace Ombrel::Proc
