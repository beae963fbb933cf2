#include "Proc/Settings/SettingsEffectReduceLocalLuma.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectReduceLocalLuma::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectReduceLocalLuma>
{
    using R = SettingsEffectReduceLocalLuma;
    using List = FieldList<FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>, FieldDescriptor<&R::m_width>,
                           FieldDescriptor<&R::m_height>, FieldDescriptor<&R::m_strength>>;
};

template struct Reflected<SettingsEffectReduceLocalLuma>;

bool SettingsEffectReduceLocalLuma::IsEmpty() const
{
    return m_strength == 0.0;
}

bool SettingsEffectReduceLocalLuma::operator==(const SettingsEffectReduceLocalLuma& other) const
{
    return Reflected<SettingsEffectReduceLocalLuma>::Equal(*this, other);
}

} // namespace Ombrel::Proc
