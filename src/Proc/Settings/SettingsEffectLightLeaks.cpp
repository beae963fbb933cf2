#include "Proc/Settings/SettingsEffectLightLeaks.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectLightLeaks::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectLightLeaks::GetClassId() const
{
    return ClassIdOf<SettingsEffectLightLeaks>();
}

template <> struct EnumNames<SettingsEffectLightLeaks::LeakPreset>
{
    using E = SettingsEffectLightLeaks::LeakPreset;

    static constexpr EnumNameRow ROWS[] = {
        {"enPreset1", E::enPreset1},   {"enPreset2", E::enPreset2},   {"enPreset3", E::enPreset3},
        {"enPreset4", E::enPreset4},   {"enPreset5", E::enPreset5},   {"enPreset6", E::enPreset6},
        {"enPreset7", E::enPreset7},   {"enPreset8", E::enPreset8},   {"enPreset9", E::enPreset9},
        {"enPreset10", E::enPreset10}, {"enPreset11", E::enPreset11}, {"enPreset12", E::enPreset12},
        {"enPreset13", E::enPreset13}, {"enPreset14", E::enPreset14}, {"enPreset15", E::enPreset15},
        {"enPreset16", E::enPreset16},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectLightLeaks::Schema() noexcept
{
    using R = SettingsEffectLightLeaks;
    return Describe<R, FieldList<AccessorDescriptor<"preset", &R::SetPreset, &R::GetPreset>>>();
}

} // namespace Ombrel::Proc
