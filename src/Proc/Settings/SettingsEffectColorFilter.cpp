#include "Proc/Settings/SettingsEffectColorFilter.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectColorFilter::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectColorFilter::GetClassId() const
{
    return ClassIdOf<SettingsEffectColorFilter>();
}

template <> struct EnumNames<SettingsEffectColorFilter::Preset>
{
    using E = SettingsEffectColorFilter::Preset;

    static constexpr EnumNameRow ROWS[] = {
        {"enPraset01", E::enPraset01},
        {"enPraset02", E::enPraset02},
        {"enPraset03", E::enPraset03},
        {"enPraset04", E::enPraset04},
        {"enPraset05", E::enPraset05},
        {"enPraset06", E::enPraset06},
        {"enPraset07", E::enPraset07},
        {"enPraset08", E::enPraset08},
        {"enPraset09", E::enPraset09},
        {"enPraset10", E::enPraset10},
        {"enPraset11", E::enPraset11},
        {"enPraset12", E::enPraset12},
        {"enPraset13", E::enPraset13},
        {"enPraset14", E::enPraset14},
        {"enPraset15", E::enPraset15},
        {"enPraset16", E::enPraset16},
        {"enPraset17", E::enPraset17},
        {"enPraset18", E::enPraset18},
        {"enPraset19", E::enPraset19},
        {"enPraset20", E::enPraset20},
        {"enPraset21", E::enPraset21},
        {"enPraset22", E::enPraset22},
        {"enPraset23", E::enPraset23},
        {"enPraset24", E::enPraset24},
        {"enPraset25", E::enPraset25},
        {"enPraset26", E::enPraset26},
        {"enPraset27", E::enPraset27},
        {"enPraset28", E::enPraset28},
        {"enPraset29", E::enPraset29},
        {"enPraset30", E::enPraset30},
        {"enPraset31", E::enPraset31},
        {"enPraset32", E::enPraset32},
        {"enPraset33", E::enPraset33},
        {"enPraset34", E::enPraset34},
        {"enPraset35", E::enPraset35},
        {"enPraset36", E::enPraset36},
        {"enPrasetMultiply", E::enPrasetMultiply},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectColorFilter::Schema() noexcept
{
    using R = SettingsEffectColorFilter;
    return Describe<R, FieldList<AccessorDescriptor<"preset", &R::SetPreset, &R::GetPreset>,
                                 AccessorDescriptor<"filterId", &R::SetFilterId, &R::GetFilterId>,
                                 AccessorDescriptor<"RFactor", &R::SetRFactor, &R::GetRFactor>,
                                 AccessorDescriptor<"GFactor", &R::SetGFactor, &R::GetGFactor>,
                                 AccessorDescriptor<"BFactor", &R::SetBFactor, &R::GetBFactor>,
                                 AccessorDescriptor<"colorFactor", &R::SetColorFactor, &R::GetColorFactor>,
                                 AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>>();
}

bool SettingsEffectColorFilter::IsEmpty() const
{
    return *this == Reflected<SettingsEffectColorFilter>::Default();
}

} // namespace Ombrel::Proc
