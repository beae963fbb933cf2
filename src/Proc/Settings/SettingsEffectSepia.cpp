#include "Proc/Settings/SettingsEffectSepia.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectSepia::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectSepia>
{
    using R = SettingsEffectSepia;
    using List = FieldList<FieldDescriptor<&R::m_threshold>>;
};

template struct Reflected<SettingsEffectSepia>;

bool SettingsEffectSepia::IsEmpty() const
{
    return m_threshold == 0.0;
}

bool SettingsEffectSepia::operator==(const SettingsEffectSepia& other) const
{
    return Reflected<SettingsEffectSepia>::Equal(*this, other);
}

} // namespace Ombrel::Proc
