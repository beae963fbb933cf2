#include "SettingsEffectFrame.h"

#include "Proc/EffectSettings/OwnEffect.h"

using Studio::SettingsEffectFrame;

template <> struct Ombrel::Proc::EnumNames<SettingsEffectFrame::Style>
{
    static constexpr EnumNameRow ROWS[] = {
        {"plain", SettingsEffectFrame::Style::Plain},
        {"double", SettingsEffectFrame::Style::Double},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

namespace Studio
{

OMBREL_EARLY_INIT const std::string SettingsEffectFrame::CLASS_ID{CLASS_NAME};

const std::string& SettingsEffectFrame::GetClassId() const
{
    return Ombrel::Proc::ClassIdOf<SettingsEffectFrame>();
}

const Ombrel::Proc::RecordSchema& SettingsEffectFrame::Schema() noexcept
{
    using namespace Ombrel::Proc;
    using R = SettingsEffectFrame;
    return Describe<R,
                    FieldList<AccessorDescriptor<"width", &R::SetWidth, &R::GetWidth>, FieldDescriptor<&R::m_style>,
                              FieldDescriptor<&R::m_color>, FieldDescriptor<&R::m_dashes>, FieldDescriptor<&R::m_isInside>>>();
}

bool SettingsEffectFrame::IsEmpty() const
{
    return m_width == 0;
}

} // namespace Studio
