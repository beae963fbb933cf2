#include "Proc/Settings/SettingsEffectHistogram.h"

#include "Proc/Settings/PixFmtNames.h"
#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectHistogram::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectHistogram::GetClassId() const
{
    return ClassIdOf<SettingsEffectHistogram>();
}

const RecordSchema& SettingsEffectHistogram::Schema() noexcept
{
    using R = SettingsEffectHistogram;
    return Describe<
        R, FieldList<FieldDescriptor<&R::m_width>, FieldDescriptor<&R::m_heightLevel>, FieldDescriptor<&R::m_heightScale>,
                     FieldDescriptor<&R::m_sharpen>, FieldDescriptor<&R::m_pixFmt>, FieldDescriptor<&R::m_flags>>>();
}

} // namespace Ombrel::Proc
