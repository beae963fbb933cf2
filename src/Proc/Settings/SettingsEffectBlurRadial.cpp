#include "Proc/Settings/SettingsEffectBlurRadial.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectBlurRadial::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectBlurRadial::GetClassId() const
{
    return ClassIdOf<SettingsEffectBlurRadial>();
}

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

const RecordSchema& SettingsEffectBlurRadial::TracePoint::Schema() noexcept
{
    using R = TracePoint;
    return Describe<R, FieldList<FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>>>();
}

const RecordSchema& SettingsEffectBlurRadial::Schema() noexcept
{
    using R = SettingsEffectBlurRadial;
    return Describe<R,
                    FieldList<FieldDescriptor<&R::m_mode>, FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>,
                              FieldDescriptor<&R::m_strength>, FieldDescriptor<&R::m_angle>, FieldDescriptor<&R::m_trace>>>();
}

bool SettingsEffectBlurRadial::IsEmpty() const
{
    return *this == Reflected<SettingsEffectBlurRadial>::Default();
}

} // namespace Ombrel::Proc
