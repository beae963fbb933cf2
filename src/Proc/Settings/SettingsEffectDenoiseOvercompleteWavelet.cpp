#include "Proc/Settings/SettingsEffectDenoiseOvercompleteWavelet.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDenoiseOvercompleteWavelet::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDenoiseOvercompleteWavelet::GetClassId() const
{
    return ClassIdOf<SettingsEffectDenoiseOvercompleteWavelet>();
}

const RecordSchema& SettingsEffectDenoiseOvercompleteWavelet::Schema() noexcept
{
    using R = SettingsEffectDenoiseOvercompleteWavelet;
    return Describe<R, FieldList<AccessorDescriptor<"depth", &R::SetDepth, &R::GetDepth>,
                                 AccessorDescriptor<"lumaStrength", &R::SetLumaStrength, &R::GetLumaStrength>,
                                 AccessorDescriptor<"chromaStrength", &R::SetChromaStrength, &R::GetChromaStrength>>>();
}

bool SettingsEffectDenoiseOvercompleteWavelet::IsEmpty() const
{
    return *this == Reflected<SettingsEffectDenoiseOvercompleteWavelet>::Default();
}

} // namespace Ombrel::Proc
