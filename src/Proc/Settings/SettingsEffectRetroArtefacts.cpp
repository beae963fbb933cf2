#include "Proc/Settings/SettingsEffectRetroArtefacts.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/ScaledInteger.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectRetroArtefacts::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectRetroArtefacts::GetClassId() const
{
    return ClassIdOf<SettingsEffectRetroArtefacts>();
}

const RecordSchema& SettingsEffectRetroArtefacts::Schema() noexcept
{
    using R = SettingsEffectRetroArtefacts;
    return Describe<R, FieldList<AccessorDescriptor<"shake", &R::SetShake, &R::GetShake>,
                                 AccessorDescriptor<"vignetting", &R::SetVignetting, &R::GetVignetting>,
                                 AccessorDescriptor<"grain", &R::SetGrain, &R::GetGrain>,
                                 AccessorDescriptor<"scratches", &R::SetScratches, &R::GetScratches>,
                                 AccessorDescriptor<"rollerTrack", &R::SetRollerTrack, &R::GetRollerTrack>,
                                 AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>>();
}

bool SettingsEffectRetroArtefacts::IsEmpty() const
{
    return *this == Reflected<SettingsEffectRetroArtefacts>::Default();
}

std::uint32_t SettingsEffectRetroArtefacts::GetGrain() const
{
    return ScaledInteger(m_grain, m_intensity);
}

std::uint32_t SettingsEffectRetroArtefacts::GetScratches() const
{
    return ScaledInteger(m_scratches, m_intensity);
}

std::uint32_t SettingsEffectRetroArtefacts::GetRollerTrack() const
{
    return ScaledInteger(m_rollerTrack, m_intensity);
}

// The field list knows the products alone.
bool SettingsEffectRetroArtefacts::operator==(const SettingsEffectRetroArtefacts& other) const
{
    return m_shake == other.m_shake && m_vignetting == other.m_vignetting && m_grain == other.m_grain &&
           m_scratches == other.m_scratches && m_rollerTrack == other.m_rollerTrack && m_intensity == other.m_intensity;
}

} // namespace Ombrel::Proc
