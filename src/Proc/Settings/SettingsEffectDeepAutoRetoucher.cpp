#include "Proc/Settings/SettingsEffectDeepAutoRetoucher.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDeepAutoRetoucher::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDeepAutoRetoucher>
{
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectDeepAutoRetoucher>;

SettingsEffectDeepAutoRetoucher::~SettingsEffectDeepAutoRetoucher() = default;

} // namespace Ombrel::Proc
