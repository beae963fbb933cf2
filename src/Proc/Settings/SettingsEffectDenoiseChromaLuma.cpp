#include "Proc/Settings/SettingsEffectDenoiseChromaLuma.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDenoiseChromaLuma::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDenoiseChromaLuma::GetClassId() const
{
    return ClassIdOf<SettingsEffectDenoiseChromaLuma>();
}

const RecordSchema& SettingsEffectDenoiseChromaLuma::Schema() noexcept
{
    using R = SettingsEffectDenoiseChromaLuma;
    return Describe<
        R, FieldList<
               AccessorDescriptor<"lumaStrength", &R::SetLumaStrength, &R::GetLumaStrength>,
               AccessorDescriptor<"chromaStrength", &R::SetChromaStrength, &R::GetChromaStrength>,
               AccessorDescriptor<"lumaStrengthTemporal", &R::SetLumaStrengthTemporal, &R::GetLumaStrengthTemporal>,
               AccessorDescriptor<"chromaStrengthTemporal", &R::SetChromaStrengthTemporal, &R::GetChromaStrengthTemporal>>>();
}

bool SettingsEffectDenoiseChromaLuma::IsEmpty() const
{
    return *this == Reflected<SettingsEffectDenoiseChromaLuma>::Default();
}

} // namespace Ombrel::Proc
