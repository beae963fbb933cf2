#include "Proc/Settings/SettingsEffectMatting.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectMatting::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectMatting>
{
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectMatting>;

SettingsEffectMatting::~SettingsEffectMatting() = default;

bool SettingsEffectMatting::operator==(const SettingsEffectMatting&) const
{
    return true;
}

} // namespace Ombrel::Proc
