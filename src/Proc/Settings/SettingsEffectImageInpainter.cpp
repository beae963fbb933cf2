#include "Proc/Settings/SettingsEffectImageInpainter.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectImageInpainter::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectImageInpainter::GetClassId() const
{
    return ClassIdOf<SettingsEffectImageInpainter>();
}

const RecordSchema& SettingsEffectImageInpainter::Schema() noexcept
{
    return Describe<SettingsEffectImageInpainter, FieldList<>>();
}

SettingsEffectImageInpainter::SettingsEffectImageInpainter()
{
    neuralMode = 1;
}

} // namespace Ombrel::Proc
