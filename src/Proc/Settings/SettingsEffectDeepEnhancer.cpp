#include "Proc/Settings/SettingsEffectDeepEnhancer.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDeepEnhancer::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDeepEnhancer>
{
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectDeepEnhancer>;

SettingsEffectDeepEnhancer::~SettingsEffectDeepEnhancer() = default;

} // namespace Ombrel::Proc
