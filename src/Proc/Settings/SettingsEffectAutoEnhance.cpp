#include "Proc/Settings/SettingsEffectAutoEnhance.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectAutoEnhance::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectAutoEnhance>
{
    using R = SettingsEffectAutoEnhance;
    using List = FieldList<FieldDescriptor<&R::m_intensity>>;
};

template struct Reflected<SettingsEffectAutoEnhance>;

SettingsEffectAutoEnhance::~SettingsEffectAutoEnhance() = default;

bool SettingsEffectAutoEnhance::operator==(const SettingsEffectAutoEnhance& other) const
{
    return Reflected<SettingsEffectAutoEnhance>::Equal(*this, other);
}

} // namespace Ombrel::Proc
