#include "Proc/Settings/SettingsEffectGradient.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectGradient::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectGradient>
{
    using R = SettingsEffectGradient;
    using List = FieldList<FieldDescriptor<&R::m_gradient>>;
};

template struct Reflected<SettingsEffectGradient>;

bool SettingsEffectGradient::IsEmpty() const
{
    return m_gradient.empty();
}

bool SettingsEffectGradient::operator==(const SettingsEffectGradient& other) const
{
    return Reflected<SettingsEffectGradient>::Equal(*this, other);
}

} // namespace Ombrel::Proc
