#include "Proc/Settings/SettingsEffectBiColorToning.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectBiColorToning::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectBiColorToning>
{
    using R = SettingsEffectBiColorToning;
    using List = FieldList<FieldDescriptor<&R::m_colorFirst>, FieldDescriptor<&R::m_colorSecond>>;
};

template struct Reflected<SettingsEffectBiColorToning>;

SettingsEffectBiColorToning::~SettingsEffectBiColorToning() = default;

bool SettingsEffectBiColorToning::operator==(const SettingsEffectBiColorToning& other) const
{
    return Reflected<SettingsEffectBiColorToning>::Equal(*this, other);
}

} // namespace Ombrel::Proc
