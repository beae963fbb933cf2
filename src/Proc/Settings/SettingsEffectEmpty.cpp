#include "Proc/Settings/SettingsEffectEmpty.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectEmpty::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectEmpty>
{
    using R = SettingsEffectEmpty;
    using List = FieldList<FieldDescriptor<&R::m_value>>;
};

template struct Reflected<SettingsEffectEmpty>;

SettingsEffectEmpty::~SettingsEffectEmpty() = default;

bool SettingsEffectEmpty::operator==(const SettingsEffectEmpty& other) const
{
    return Reflected<SettingsEffectEmpty>::Equal(*this, other);
}

} // namespace Ombrel::Proc
