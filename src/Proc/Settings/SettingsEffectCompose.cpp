#include "Proc/Settings/SettingsEffectCompose.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectCompose::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectCompose::GetClassId() const
{
    return ClassIdOf<SettingsEffectCompose>();
}

// An unknown name reads as NoCompositeOp, which is 0, and not as the default.
template <> struct EnumNames<SettingsEffectCompose::CompositeOperator>
{
    using E = SettingsEffectCompose::CompositeOperator;

    static constexpr EnumNameRow ROWS[] = {
        {"UndefinedCompositeOp", E::UndefinedCompositeOp},
        {"NoCompositeOp", E::NoCompositeOp},
        {"ModulusAddCompositeOp", E::ModulusAddCompositeOp},
        {"AtopCompositeOp", E::AtopCompositeOp},
        {"BlendCompositeOp", E::BlendCompositeOp},
        {"BumpmapCompositeOp", E::BumpmapCompositeOp},
        {"ChangeMaskCompositeOp", E::ChangeMaskCompositeOp},
        {"ClearCompositeOp", E::ClearCompositeOp},
        {"ColorBurnCompositeOp", E::ColorBurnCompositeOp},
        {"ColorDodgeCompositeOp", E::ColorDodgeCompositeOp},
        {"ColorizeCompositeOp", E::ColorizeCompositeOp},
        {"CopyBlackCompositeOp", E::CopyBlackCompositeOp},
        {"CopyBlueCompositeOp", E::CopyBlueCompositeOp},
        {"CopyCompositeOp", E::CopyCompositeOp},
        {"CopyCyanCompositeOp", E::CopyCyanCompositeOp},
        {"CopyGreenCompositeOp", E::CopyGreenCompositeOp},
        {"CopyMagentaCompositeOp", E::CopyMagentaCompositeOp},
        {"CopyOpacityCompositeOp", E::CopyOpacityCompositeOp},
        {"CopyRedCompositeOp", E::CopyRedCompositeOp},
        {"CopyYellowCompositeOp", E::CopyYellowCompositeOp},
        {"DarkenCompositeOp", E::DarkenCompositeOp},
        {"DstAtopCompositeOp", E::DstAtopCompositeOp},
        {"DstCompositeOp", E::DstCompositeOp},
        {"DstInCompositeOp", E::DstInCompositeOp},
        {"DstOutCompositeOp", E::DstOutCompositeOp},
        {"DstOverCompositeOp", E::DstOverCompositeOp},
        {"DifferenceCompositeOp", E::DifferenceCompositeOp},
        {"DisplaceCompositeOp", E::DisplaceCompositeOp},
        {"DissolveCompositeOp", E::DissolveCompositeOp},
        {"ExclusionCompositeOp", E::ExclusionCompositeOp},
        {"HardLightCompositeOp", E::HardLightCompositeOp},
        {"HueCompositeOp", E::HueCompositeOp},
        {"InCompositeOp", E::InCompositeOp},
        {"LightenCompositeOp", E::LightenCompositeOp},
        {"LinearLightCompositeOp", E::LinearLightCompositeOp},
        {"LuminizeCompositeOp", E::LuminizeCompositeOp},
        {"MinusDstCompositeOp", E::MinusDstCompositeOp},
        {"ModulateCompositeOp", E::ModulateCompositeOp},
        {"MultiplyCompositeOp", E::MultiplyCompositeOp},
        {"OutCompositeOp", E::OutCompositeOp},
        {"OverCompositeOp", E::OverCompositeOp},
        {"OverlayCompositeOp", E::OverlayCompositeOp},
        {"PlusCompositeOp", E::PlusCompositeOp},
        {"ReplaceCompositeOp", E::ReplaceCompositeOp},
        {"SaturateCompositeOp", E::SaturateCompositeOp},
        {"ScreenCompositeOp", E::ScreenCompositeOp},
        {"SoftLightCompositeOp", E::SoftLightCompositeOp},
        {"SrcAtopCompositeOp", E::SrcAtopCompositeOp},
        {"SrcCompositeOp", E::SrcCompositeOp},
        {"SrcInCompositeOp", E::SrcInCompositeOp},
        {"SrcOutCompositeOp", E::SrcOutCompositeOp},
        {"SrcOverCompositeOp", E::SrcOverCompositeOp},
        {"ModulusSubtractCompositeOp", E::ModulusSubtractCompositeOp},
        {"ThresholdCompositeOp", E::ThresholdCompositeOp},
        {"XorCompositeOp", E::XorCompositeOp},
        {"DivideDstCompositeOp", E::DivideDstCompositeOp},
        {"DistortCompositeOp", E::DistortCompositeOp},
        {"BlurCompositeOp", E::BlurCompositeOp},
        {"PegtopLightCompositeOp", E::PegtopLightCompositeOp},
        {"VividLightCompositeOp", E::VividLightCompositeOp},
        {"PinLightCompositeOp", E::PinLightCompositeOp},
        {"LinearDodgeCompositeOp", E::LinearDodgeCompositeOp},
        {"LinearBurnCompositeOp", E::LinearBurnCompositeOp},
        {"MathematicsCompositeOp", E::MathematicsCompositeOp},
        {"DivideSrcCompositeOp", E::DivideSrcCompositeOp},
        {"MinusSrcCompositeOp", E::MinusSrcCompositeOp},
        {"DarkenIntensityCompositeOp", E::DarkenIntensityCompositeOp},
        {"LightenIntensityCompositeOp", E::LightenIntensityCompositeOp},
        {"HardMixCompositeOp", E::HardMixCompositeOp},
    };
    static constexpr EnumNameTable TABLE{ROWS, static_cast<std::int32_t>(E::NoCompositeOp)};
};

const RecordSchema& SettingsEffectCompose::Schema() noexcept
{
    using R = SettingsEffectCompose;
    return Describe<R, FieldList<FieldDescriptor<&R::m_operator>>>();
}

bool SettingsEffectCompose::operator==(const SettingsEffectCompose& other) const
{
    return m_operator == other.m_operator;
}

} // namespace Ombrel::Proc
