#include "SettingsEffectFrame.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

using Studio::SettingsEffectFrame;

template <> struct Ombrel::Proc::EnumNames<SettingsEffectFrame::Style>
{
    static constexpr EnumNameRow ROWS[] = {
        {"plain", SettingsEffectFrame::Style::Plain},
        {"double", SettingsEffectFrame::Style::Double},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Ombrel::Proc::Fields<SettingsEffectFrame>
{
    using R = SettingsEffectFrame;
    using List = FieldList<AccessorDescriptor<"width", &R::SetWidth, &R::GetWidth>, FieldDescriptor<&R::m_style>,
                           FieldDescriptor<&R::m_color>, FieldDescriptor<&R::m_dashes>, FieldDescriptor<&R::m_isInside>>;
};

template struct Ombrel::Proc::Reflected<SettingsEffectFrame>;

namespace Studio
{

const std::string SettingsEffectFrame::CLASS_ID{CLASS_NAME};

bool SettingsEffectFrame::IsEmpty() const
{
    return m_width == 0;
}

bool SettingsEffectFrame::operator==(const SettingsEffectFrame& other) const
{
    return Ombrel::Proc::Reflected<SettingsEffectFrame>::Equal(*this, other);
}

} // namespace Studio
