#include "Proc/Settings/SettingsEffectAutoGlareRemove.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectAutoGlareRemove::CLASS_ID{CLASS_NAME};

extern template struct Reflected<Face>;

template <> struct Fields<SettingsEffectAutoGlareRemove>
{
    using R = SettingsEffectAutoGlareRemove;
    using List = FieldList<FieldDescriptor<&R::m_face>>;
};

template struct Reflected<SettingsEffectAutoGlareRemove>;

bool SettingsEffectAutoGlareRemove::IsEmpty() const
{
    return m_face.IsEmpty();
}

bool SettingsEffectAutoGlareRemove::operator==(const SettingsEffectAutoGlareRemove& other) const
{
    return Reflected<SettingsEffectAutoGlareRemove>::Equal(*this, other);
}

} // namespace Ombrel::Proc
