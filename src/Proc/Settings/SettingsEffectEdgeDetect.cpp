#include "Proc/Settings/SettingsEffectEdgeDetect.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectEdgeDetect::CLASS_ID{CLASS_NAME};

template <> struct EnumNames<SettingsEffectEdgeDetect::EdgeDetectMode>
{
    using E = SettingsEffectEdgeDetect::EdgeDetectMode;

    static constexpr EnumNameRow ROWS[] = {
        {"None", E::None},
        {"Wires", E::Wires},
        {"Colormix", E::Colormix},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectEdgeDetect>
{
    using R = SettingsEffectEdgeDetect;
    using List =
        FieldList<FieldDescriptor<&R::m_mode>, FieldDescriptor<&R::m_lowThreshold>, FieldDescriptor<&R::m_highThreshold>>;
};

template struct Reflected<SettingsEffectEdgeDetect>;

bool SettingsEffectEdgeDetect::IsEmpty() const
{
    return *this == Reflected<SettingsEffectEdgeDetect>::Default();
}

bool SettingsEffectEdgeDetect::operator==(const SettingsEffectEdgeDetect& other) const
{
    return Reflected<SettingsEffectEdgeDetect>::Equal(*this, other);
}

} // namespace Ombrel::Proc
