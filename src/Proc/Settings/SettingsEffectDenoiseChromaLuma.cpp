#include "Proc/Settings/SettingsEffectDenoiseChromaLuma.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDenoiseChromaLuma::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDenoiseChromaLuma>
{
    using R = SettingsEffectDenoiseChromaLuma;
    using List = FieldList<FieldDescriptor<&R::m_lumaStrength>, FieldDescriptor<&R::m_chromaStrength>,
                           FieldDescriptor<&R::m_lumaStrengthTemporal>, FieldDescriptor<&R::m_chromaStrengthTemporal>>;
};

template struct Reflected<SettingsEffectDenoiseChromaLuma>;

bool SettingsEffectDenoiseChromaLuma::IsEmpty() const
{
    return *this == Reflected<SettingsEffectDenoiseChromaLuma>::Default();
}

bool SettingsEffectDenoiseChromaLuma::operator==(const SettingsEffectDenoiseChromaLuma& other) const
{
    return Reflected<SettingsEffectDenoiseChromaLuma>::Equal(*this, other);
}

} // namespace Ombrel::Proc
