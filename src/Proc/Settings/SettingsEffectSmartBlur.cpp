#include "Proc/Settings/SettingsEffectSmartBlur.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectSmartBlur::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectSmartBlur::GetClassId() const
{
    return ClassIdOf<SettingsEffectSmartBlur>();
}

const RecordSchema& SettingsEffectSmartBlur::Schema() noexcept
{
    using R = SettingsEffectSmartBlur;
    return Describe<R, FieldList<AccessorDescriptor<"lumaRadius", &R::SetLumaRadius, &R::GetLumaRadius>,
                                 AccessorDescriptor<"lumaBlur", &R::SetLumaBlur, &R::GetLumaBlur>,
                                 AccessorDescriptor<"lumaSharpen", &R::SetLumaSharpen, &R::GetLumaSharpen>,
                                 AccessorDescriptor<"lumaThreshold", &R::SetLumaThreshold, &R::GetLumaThreshold>,
                                 AccessorDescriptor<"chromaRadius", &R::SetChromaRadius, &R::GetChromaRadius>,
                                 AccessorDescriptor<"chromaBlur", &R::SetChromaBlur, &R::GetChromaBlur>,
                                 AccessorDescriptor<"chromaSharpen", &R::SetChromaSharpen, &R::GetChromaSharpen>,
                                 AccessorDescriptor<"chromaThreshold", &R::SetChromaThreshold, &R::GetChromaThreshold>>>();
}

bool SettingsEffectSmartBlur::IsEmpty() const
{
    return *this == Reflected<SettingsEffectSmartBlur>::Default();
}

} // namespace Ombrel::Proc
