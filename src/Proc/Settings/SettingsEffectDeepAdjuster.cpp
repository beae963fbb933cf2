#include "Proc/Settings/SettingsEffectDeepAdjuster.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDeepAdjuster::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDeepAdjuster>
{
    using R = SettingsEffectDeepAdjuster;
    using List = FieldList<FieldDescriptor<&R::m_brightness>, FieldDescriptor<&R::m_contrast>, FieldDescriptor<&R::m_vibrance>,
                           FieldDescriptor<&R::m_exposure>, FieldDescriptor<&R::m_shadows>, FieldDescriptor<&R::m_hightlights>>;
};

template struct Reflected<SettingsEffectDeepAdjuster>;

SettingsEffectDeepAdjuster::~SettingsEffectDeepAdjuster() = default;

} // namespace Ombrel::Proc
