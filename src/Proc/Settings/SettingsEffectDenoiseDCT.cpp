#include "Proc/Settings/SettingsEffectDenoiseDCT.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDenoiseDCT::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDenoiseDCT>
{
    using R = SettingsEffectDenoiseDCT;
    using List =
        FieldList<FieldDescriptor<&R::m_sigma>, FieldDescriptor<&R::m_overlapSize>, FieldDescriptor<&R::m_blockSizeBits>>;
};

template struct Reflected<SettingsEffectDenoiseDCT>;

bool SettingsEffectDenoiseDCT::IsEmpty() const
{
    return *this == Reflected<SettingsEffectDenoiseDCT>::Default();
}

bool SettingsEffectDenoiseDCT::operator==(const SettingsEffectDenoiseDCT& other) const
{
    return Reflected<SettingsEffectDenoiseDCT>::Equal(*this, other);
}

} // namespace Ombrel::Proc
