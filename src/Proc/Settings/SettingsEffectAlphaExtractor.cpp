#include "Proc/Settings/SettingsEffectAlphaExtractor.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectAlphaExtractor::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectAlphaExtractor>
{
    using R = SettingsEffectAlphaExtractor;
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectAlphaExtractor>;

SettingsEffectAlphaExtractor::~SettingsEffectAlphaExtractor() = default;

bool SettingsEffectAlphaExtractor::operator==(const SettingsEffectAlphaExtractor& other) const
{
    return Reflected<SettingsEffectAlphaExtractor>::Equal(*this, other);
}

} // namespace Ombrel::Proc
