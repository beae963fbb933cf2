#include "Proc/Settings/SettingsEffectGradientPosterize.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectGradientPosterize::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectGradientPosterize>
{
    using R = SettingsEffectGradientPosterize;
    using List = FieldList<FieldDescriptor<&R::m_colorCount>>;
};

template struct Reflected<SettingsEffectGradientPosterize>;

bool SettingsEffectGradientPosterize::IsEmpty() const
{
    return m_colorCount == 0;
}

bool SettingsEffectGradientPosterize::operator==(const SettingsEffectGradientPosterize& other) const
{
    return Reflected<SettingsEffectGradientPosterize>::Equal(*this, other);
}

} // namespace Ombrel::Proc
