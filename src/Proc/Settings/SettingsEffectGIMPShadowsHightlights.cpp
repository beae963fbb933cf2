#include "Proc/Settings/SettingsEffectGIMPShadowsHightlights.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectGIMPShadowsHightlights::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectGIMPShadowsHightlights>
{
    using R = SettingsEffectGIMPShadowsHightlights;
    using List =
        FieldList<AccessorDescriptor<"shadows", &R::SetShadows, &R::GetShadows>,
                  AccessorDescriptor<"shadowsColorCorrect", &R::SetShadowsColorCorrect, &R::GetShadowsColorCorrect>,
                  AccessorDescriptor<"highlights", &R::SetHighlights, &R::GetHighlights>,
                  AccessorDescriptor<"highlightsColorCorrect", &R::SetHighlightsColorCorrect, &R::GetHighlightsColorCorrect>,
                  AccessorDescriptor<"whitepoint", &R::SetWhitepoint, &R::GetWhitepoint>,
                  AccessorDescriptor<"compress", &R::SetCompress, &R::GetCompress>,
                  AccessorDescriptor<"intensity", &R::SetIntensity, &R::GetIntensity>>;
};

template struct Reflected<SettingsEffectGIMPShadowsHightlights>;

bool SettingsEffectGIMPShadowsHightlights::IsEmpty() const
{
    return *this == Reflected<SettingsEffectGIMPShadowsHightlights>::Default();
}

bool SettingsEffectGIMPShadowsHightlights::operator==(const SettingsEffectGIMPShadowsHightlights& other) const
{
    return Reflected<SettingsEffectGIMPShadowsHightlights>::Equal(*this, other);
}

} // namespace Ombrel::Proc
