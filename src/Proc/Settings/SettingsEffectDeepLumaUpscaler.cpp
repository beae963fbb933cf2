#include "Proc/Settings/SettingsEffectDeepLumaUpscaler.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDeepLumaUpscaler::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDeepLumaUpscaler>
{
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectDeepLumaUpscaler>;

SettingsEffectDeepLumaUpscaler::~SettingsEffectDeepLumaUpscaler() = default;

} // namespace Ombrel::Proc
