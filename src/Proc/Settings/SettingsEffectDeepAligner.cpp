#include "Proc/Settings/SettingsEffectDeepAligner.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDeepAligner::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDeepAligner::GetClassId() const
{
    return ClassIdOf<SettingsEffectDeepAligner>();
}

const RecordSchema& SettingsEffectDeepAligner::Schema() noexcept
{
    using R = SettingsEffectDeepAligner;
    return Describe<R, FieldList<FieldDescriptor<&R::m_angle>, FieldDescriptor<&R::m_horizonDetected>>>();
}

} // namespace Ombrel::Proc
