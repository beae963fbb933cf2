#include "Proc/Settings/SettingsEffectInpaint.h"

#include "Proc/Settings/RecordSource.h"

#include <cmath>

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectInpaint::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectInpaint::GetClassId() const
{
    return ClassIdOf<SettingsEffectInpaint>();
}

const RecordSchema& SettingsEffectInpaint::Schema() noexcept
{
    using R = SettingsEffectInpaint;
    return Describe<R, FieldList<FieldDescriptor<&R::m_lookupSize>, FieldDescriptor<&R::m_patchSize>>>();
}

bool SettingsEffectInpaint::operator==(const SettingsEffectInpaint& other) const
{
    constexpr double tolerance = 1e-05;
    return std::abs(m_lookupSize - other.m_lookupSize) < tolerance && m_patchSize == other.m_patchSize;
}

} // namespace Ombrel::Proc
