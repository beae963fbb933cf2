#include "Proc/Settings/SettingsEffectDenoiseOvercompleteWavelet.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDenoiseOvercompleteWavelet::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDenoiseOvercompleteWavelet>
{
    using R = SettingsEffectDenoiseOvercompleteWavelet;
    using List =
        FieldList<FieldDescriptor<&R::m_depth>, FieldDescriptor<&R::m_lumaStrength>, FieldDescriptor<&R::m_chromaStrength>>;
};

template struct Reflected<SettingsEffectDenoiseOvercompleteWavelet>;

bool SettingsEffectDenoiseOvercompleteWavelet::IsEmpty() const
{
    return *this == Reflected<SettingsEffectDenoiseOvercompleteWavelet>::Default();
}

bool SettingsEffectDenoiseOvercompleteWavelet::operator==(const SettingsEffectDenoiseOvercompleteWavelet& other) const
{
    return Reflected<SettingsEffectDenoiseOvercompleteWavelet>::Equal(*this, other);
}

} // namespace Ombrel::Proc
