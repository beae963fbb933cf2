#include "Proc/Settings/SettingsEffectBlackWhite.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectBlackWhite::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectBlackWhite::GetClassId() const
{
    return ClassIdOf<SettingsEffectBlackWhite>();
}

const RecordSchema& SettingsEffectBlackWhite::Schema() noexcept
{
    using R = SettingsEffectBlackWhite;
    return Describe<R,
                    FieldList<FieldDescriptor<&R::m_threshold>, FieldDescriptor<&R::m_black>, FieldDescriptor<&R::m_white>>>();
}

} // namespace Ombrel::Proc
