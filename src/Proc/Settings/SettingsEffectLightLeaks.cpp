#include "Proc/Settings/SettingsEffectLightLeaks.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectLightLeaks::CLASS_ID{CLASS_NAME};

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

template <> struct Fields<SettingsEffectLightLeaks>
{
    using R = SettingsEffectLightLeaks;
    using List = FieldList<FieldDescriptor<&R::m_preset>>;
};

template struct Reflected<SettingsEffectLightLeaks>;

SettingsEffectLightLeaks::~SettingsEffectLightLeaks() = default;

bool SettingsEffectLightLeaks::operator==(const SettingsEffectLightLeaks& other) const
{
    return Reflected<SettingsEffectLightLeaks>::Equal(*this, other);
}

} // namespace Ombrel::Proc
