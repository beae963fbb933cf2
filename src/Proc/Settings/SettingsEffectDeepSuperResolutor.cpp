#include "Proc/Settings/SettingsEffectDeepSuperResolutor.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDeepSuperResolutor::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDeepSuperResolutor>
{
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectDeepSuperResolutor>;

SettingsEffectDeepSuperResolutor::~SettingsEffectDeepSuperResolutor() = default;

} // namespace Ombrel::Proc
