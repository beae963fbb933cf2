#include "Proc/Settings/SettingsEffectBlackWhite.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectBlackWhite::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectBlackWhite>
{
    using R = SettingsEffectBlackWhite;
    using List = FieldList<FieldDescriptor<&R::m_threshold>, FieldDescriptor<&R::m_black>, FieldDescriptor<&R::m_white>>;
};

template struct Reflected<SettingsEffectBlackWhite>;

SettingsEffectBlackWhite::~SettingsEffectBlackWhite() = default;

bool SettingsEffectBlackWhite::operator==(const SettingsEffectBlackWhite& other) const
{
    return Reflected<SettingsEffectBlackWhite>::Equal(*this, other);
}

} // namespace Ombrel::Proc
