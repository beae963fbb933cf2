#include "Proc/Settings/SettingsEffectDeepDenoiser.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDeepDenoiser::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDeepDenoiser>
{
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectDeepDenoiser>;

SettingsEffectDeepDenoiser::~SettingsEffectDeepDenoiser() = default;

} // namespace Ombrel::Proc
