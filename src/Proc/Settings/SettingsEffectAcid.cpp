#include "Proc/Settings/SettingsEffectAcid.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectAcid::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectAcid>
{
    using R = SettingsEffectAcid;
    using List = FieldList<FieldDescriptor<&R::radius>, FieldDescriptor<&R::sigma>>;
};

template struct Reflected<SettingsEffectAcid>;

bool SettingsEffectAcid::IsEmpty() const
{
    return radius == 0;
}

bool SettingsEffectAcid::operator==(const SettingsEffectAcid& other) const
{
    return Reflected<SettingsEffectAcid>::Equal(*this, other);
}

} // namespace Ombrel::Proc
