#include "Proc/Settings/SettingsEffectDirectionalAreaDeformation.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDirectionalAreaDeformation::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDirectionalAreaDeformation>
{
    using R = SettingsEffectDirectionalAreaDeformation;
    using List = FieldList<FieldDescriptor<&R::m_strength>, FieldDescriptor<&R::m_fromX>, FieldDescriptor<&R::m_fromY>,
                           FieldDescriptor<&R::m_toX>, FieldDescriptor<&R::m_toY>, FieldDescriptor<&R::m_size>>;
};

template struct Reflected<SettingsEffectDirectionalAreaDeformation>;

bool SettingsEffectDirectionalAreaDeformation::IsEmpty() const
{
    return m_strength == 0.0;
}

bool SettingsEffectDirectionalAreaDeformation::operator==(const SettingsEffectDirectionalAreaDeformation& other) const
{
    return Reflected<SettingsEffectDirectionalAreaDeformation>::Equal(*this, other);
}

} // namespace Ombrel::Proc
