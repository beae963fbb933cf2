#include "Proc/Settings/SettingsEffectTiltShift.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectTiltShift::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectTiltShift::GetClassId() const
{
    return ClassIdOf<SettingsEffectTiltShift>();
}

const RecordSchema& SettingsEffectTiltShift::Schema() noexcept
{
    using R = SettingsEffectTiltShift;
    return Describe<R, FieldList<FieldDescriptor<&R::m_alpha>, FieldDescriptor<&R::m_blur>, FieldDescriptor<&R::m_sharpen>>>();
}

bool SettingsEffectTiltShift::IsEmpty() const
{
    return *this == Reflected<SettingsEffectTiltShift>::Default();
}

} // namespace Ombrel::Proc
