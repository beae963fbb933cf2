#include "Proc/Settings/SettingsEffectGradient.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectGradient::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectGradient::GetClassId() const
{
    return ClassIdOf<SettingsEffectGradient>();
}

const RecordSchema& SettingsEffectGradient::Schema() noexcept
{
    using R = SettingsEffectGradient;
    return Describe<R, FieldList<FieldDescriptor<&R::m_gradient>>>();
}

bool SettingsEffectGradient::IsEmpty() const
{
    return m_gradient.empty();
}

} // namespace Ombrel::Proc
