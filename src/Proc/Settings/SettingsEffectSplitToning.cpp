#include "Proc/Settings/SettingsEffectSplitToning.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectSplitToning::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectSplitToning>
{
    using R = SettingsEffectSplitToning;
    using List = FieldList<FieldDescriptor<&R::m_colorFirst>, FieldDescriptor<&R::m_colorSecond>>;
};

template struct Reflected<SettingsEffectSplitToning>;

SettingsEffectSplitToning::~SettingsEffectSplitToning() = default;

bool SettingsEffectSplitToning::operator==(const SettingsEffectSplitToning& other) const
{
    return Reflected<SettingsEffectSplitToning>::Equal(*this, other);
}

} // namespace Ombrel::Proc
