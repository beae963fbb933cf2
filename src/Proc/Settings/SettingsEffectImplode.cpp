#include "Proc/Settings/SettingsEffectImplode.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectImplode::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectImplode::GetClassId() const
{
    return ClassIdOf<SettingsEffectImplode>();
}

template <> struct EnumNames<SettingsEffectImplode::ImplodeMode>
{
    using E = SettingsEffectImplode::ImplodeMode;

    static constexpr EnumNameRow ROWS[] = {
        {"Shrink", E::Shrink},
        {"Expand", E::Expand},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectImplode::Schema() noexcept
{
    using R = SettingsEffectImplode;
    return Describe<R, FieldList<FieldDescriptor<&R::m_strength>, FieldDescriptor<&R::m_mode>>>();
}

bool SettingsEffectImplode::IsEmpty() const
{
    return m_strength == 0.0;
}

} // namespace Ombrel::Proc
