#include "Proc/Settings/SettingsEffectDeepColorizer.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDeepColorizer::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDeepColorizer>
{
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectDeepColorizer>;

SettingsEffectDeepColorizer::SettingsEffectDeepColorizer()
{
    neuralMode = 1;
}

SettingsEffectDeepColorizer::~SettingsEffectDeepColorizer() = default;

} // namespace Ombrel::Proc
