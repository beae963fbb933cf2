#include "Proc/Settings/SettingsEffectColorReduce.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectColorReduce::CLASS_ID{CLASS_NAME};

template <> struct EnumNames<SettingsEffectColorReduce::ReducedColor>
{
    using E = SettingsEffectColorReduce::ReducedColor;

    static constexpr EnumNameRow ROWS[] = {
        {"Red", E::Red},
        {"Green", E::Green},
        {"Blue", E::Blue},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectColorReduce>
{
    using R = SettingsEffectColorReduce;
    using List = FieldList<FieldDescriptor<&R::m_threshold>, FieldDescriptor<&R::m_reducedColor>>;
};

template struct Reflected<SettingsEffectColorReduce>;

SettingsEffectColorReduce::~SettingsEffectColorReduce() = default;

bool SettingsEffectColorReduce::operator==(const SettingsEffectColorReduce& other) const
{
    return Reflected<SettingsEffectColorReduce>::Equal(*this, other);
}

} // namespace Ombrel::Proc
