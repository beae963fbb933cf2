#include "Proc/Settings/SettingsEffectFaceThinning.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectFaceThinning::CLASS_ID{CLASS_NAME};

extern template struct Reflected<FaceContour>;

template <> struct Fields<SettingsEffectFaceThinning>
{
    using R = SettingsEffectFaceThinning;
    using List = FieldList<FieldDescriptor<&R::m_faceOutline>, FieldDescriptor<&R::m_strength>>;
};

template struct Reflected<SettingsEffectFaceThinning>;

bool SettingsEffectFaceThinning::IsEmpty() const
{
    return m_strength == 0.0;
}

bool SettingsEffectFaceThinning::operator==(const SettingsEffectFaceThinning& other) const
{
    return Reflected<SettingsEffectFaceThinning>::Equal(*this, other);
}

} // namespace Ombrel::Proc
