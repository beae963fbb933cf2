#include "Proc/Settings/SettingsEffectGIMPShadowsHightlights.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectGIMPShadowsHightlights::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectGIMPShadowsHightlights::GetClassId() const
{
    return ClassIdOf<SettingsEffectGIMPShadowsHightlights>();
}

const RecordSchema& SettingsEffectGIMPShadowsHightlights::Schema() noexcept
{
    using R = SettingsEffectGIMPShadowsHightlights;
    return Describe<
        R, FieldList<AccessorDescriptor<"shadows", &R::SetShadows, &R::GetShadows>,
                     AccessorDescriptor<"shadowsColorCorrect", &R::SetShadowsColorCorrect, &R::GetShadowsColorCorrect>,
                     AccessorDescriptor<"highlights", &R::SetHighlights, &R::GetHighlights>,
                     AccessorDescriptor<"highlightsColorCorrect", &R::SetHighlightsColorCorrect, &R::GetHighlightsColorCorrect>,
                     AccessorDescriptor<"whitepoint", &R::SetWhitepoint, &R::GetWhitepoint>,
                     AccessorDescriptor<"compress", &R::SetCompress, &R::GetCompress>,
                     AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>>();
}

bool SettingsEffectGIMPShadowsHightlights::IsEmpty() const
{
    return *this == Reflected<SettingsEffectGIMPShadowsHightlights>::Default();
}

} // namespace Ombrel::Proc
