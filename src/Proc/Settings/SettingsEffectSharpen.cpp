#include "Proc/Settings/SettingsEffectSharpen.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectSharpen::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectSharpen>
{
    using R = SettingsEffectSharpen;
    using List = FieldList<AccessorDescriptor<"level", &R::SetLevel, &R::GetLevel>>;
};

template struct Reflected<SettingsEffectSharpen>;

bool SettingsEffectSharpen::IsEmpty() const
{
    return *this == Reflected<SettingsEffectSharpen>::Default();
}

void SettingsEffectSharpen::SetLevel(double value)
{
    m_level = value;
}

bool SettingsEffectSharpen::operator==(const SettingsEffectSharpen& other) const
{
    return Reflected<SettingsEffectSharpen>::Equal(*this, other);
}

} // namespace Ombrel::Proc
