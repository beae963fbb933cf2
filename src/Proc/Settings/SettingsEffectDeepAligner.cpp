#include "Proc/Settings/SettingsEffectDeepAligner.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectDeepAligner::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectDeepAligner>
{
    using R = SettingsEffectDeepAligner;
    using List = FieldList<FieldDescriptor<&R::m_angle>, FieldDescriptor<&R::m_horizonDetected>>;
};

template struct Reflected<SettingsEffectDeepAligner>;

SettingsEffectDeepAligner::~SettingsEffectDeepAligner() = default;

} // namespace Ombrel::Proc
