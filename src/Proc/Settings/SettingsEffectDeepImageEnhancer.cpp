#include "Proc/Settings/SettingsEffectDeepImageEnhancer.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDeepImageEnhancer::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDeepImageEnhancer>
{
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectDeepImageEnhancer>;

SettingsEffectDeepImageEnhancer::~SettingsEffectDeepImageEnhancer() = default;

} // namespace Ombrel::Proc
