#include "Proc/Settings/SettingsEffectColorReduce.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectColorReduce::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectColorReduce::GetClassId() const
{
    return ClassIdOf<SettingsEffectColorReduce>();
}

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

const RecordSchema& SettingsEffectColorReduce::Schema() noexcept
{
    using R = SettingsEffectColorReduce;
    return Describe<R, FieldList<FieldDescriptor<&R::m_threshold>, FieldDescriptor<&R::m_reducedColor>>>();
}

} // namespace Ombrel::Proc
