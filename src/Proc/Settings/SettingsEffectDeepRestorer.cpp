#include "Proc/Settings/SettingsEffectDeepRestorer.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDeepRestorer::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDeepRestorer>
{
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectDeepRestorer>;

SettingsEffectDeepRestorer::~SettingsEffectDeepRestorer() = default;

} // namespace Ombrel::Proc
