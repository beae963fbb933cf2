#include "Proc/Settings/SettingsEffectDenoiseDCT.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDenoiseDCT::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDenoiseDCT::GetClassId() const
{
    return ClassIdOf<SettingsEffectDenoiseDCT>();
}

const RecordSchema& SettingsEffectDenoiseDCT::Schema() noexcept
{
    using R = SettingsEffectDenoiseDCT;
    return Describe<R, FieldList<AccessorDescriptor<"sigma", &R::SetSigma, &R::GetSigma>,
                                 AccessorDescriptor<"overlapSize", &R::SetOverlapSize, &R::GetOverlapSize>,
                                 AccessorDescriptor<"blockSizeBits", &R::SetBlockSizeBits, &R::GetBlockSizeBits>>>();
}

bool SettingsEffectDenoiseDCT::IsEmpty() const
{
    return *this == Reflected<SettingsEffectDenoiseDCT>::Default();
}

} // namespace Ombrel::Proc
