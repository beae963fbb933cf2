#include "Proc/Settings/SettingsEffectImplode.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectImplode::CLASS_ID{CLASS_NAME};

template <> struct EnumNames<SettingsEffectImplode::ImplodeMode>
{
    using E = SettingsEffectImplode::ImplodeMode;

    static constexpr EnumNameRow ROWS[] = {
        {"Shrink", E::Shrink},
        {"Expand", E::Expand},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectImplode>
{
    using R = SettingsEffectImplode;
    using List = FieldList<FieldDescriptor<&R::m_strength>, FieldDescriptor<&R::m_mode>>;
};

template struct Reflected<SettingsEffectImplode>;

bool SettingsEffectImplode::IsEmpty() const
{
    return m_strength == 0.0;
}

bool SettingsEffectImplode::operator==(const SettingsEffectImplode& other) const
{
    return Reflected<SettingsEffectImplode>::Equal(*this, other);
}

} // namespace Ombrel::Proc
