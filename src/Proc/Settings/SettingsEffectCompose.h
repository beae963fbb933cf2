#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COMPOSE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COMPOSE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// How one picture is laid over another. There is no settings class for it: it stands in the records of effects.
class OMBREL_API SettingsEffectCompose : public SettingsRecord<SettingsEffectCompose>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_COMPOSE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class CompositeOperator : std::int32_t
    {
        UndefinedCompositeOp = -1,
        NoCompositeOp = 0,
        ModulusAddCompositeOp = 1,
        AtopCompositeOp = 2,
        BlendCompositeOp = 3,
        BumpmapCompositeOp = 4,
        ChangeMaskCompositeOp = 5,
        ClearCompositeOp = 6,
        ColorBurnCompositeOp = 7,
        ColorDodgeCompositeOp = 8,
        ColorizeCompositeOp = 9,
        CopyBlackCompositeOp = 10,
        CopyBlueCompositeOp = 11,
        CopyCompositeOp = 12,
        CopyCyanCompositeOp = 13,
        CopyGreenCompositeOp = 14,
        CopyMagentaCompositeOp = 15,
        CopyOpacityCompositeOp = 16,
        CopyRedCompositeOp = 17,
        CopyYellowCompositeOp = 18,
        DarkenCompositeOp = 19,
        DstAtopCompositeOp = 20,
        DstCompositeOp = 21,
        DstInCompositeOp = 22,
        DstOutCompositeOp = 23,
        DstOverCompositeOp = 24,
        DifferenceCompositeOp = 25,
        DisplaceCompositeOp = 26,
        DissolveCompositeOp = 27,
        ExclusionCompositeOp = 28,
        HardLightCompositeOp = 29,
        HueCompositeOp = 30,
        InCompositeOp = 31,
        LightenCompositeOp = 32,
        LinearLightCompositeOp = 33,
        LuminizeCompositeOp = 34,
        MinusDstCompositeOp = 35,
        ModulateCompositeOp = 36,
        MultiplyCompositeOp = 37,
        OutCompositeOp = 38,
        OverCompositeOp = 39,
        OverlayCompositeOp = 40,
        PlusCompositeOp = 41,
        ReplaceCompositeOp = 42,
        SaturateCompositeOp = 43,
        ScreenCompositeOp = 44,
        SoftLightCompositeOp = 45,
        SrcAtopCompositeOp = 46,
        SrcCompositeOp = 47,
        SrcInCompositeOp = 48,
        SrcOutCompositeOp = 49,
        SrcOverCompositeOp = 50,
        ModulusSubtractCompositeOp = 51,
        ThresholdCompositeOp = 52,
        XorCompositeOp = 53,
        DivideDstCompositeOp = 54,
        DistortCompositeOp = 55,
        BlurCompositeOp = 56,
        PegtopLightCompositeOp = 57,
        VividLightCompositeOp = 58,
        PinLightCompositeOp = 59,
        LinearDodgeCompositeOp = 60,
        LinearBurnCompositeOp = 61,
        MathematicsCompositeOp = 62,
        DivideSrcCompositeOp = 63,
        MinusSrcCompositeOp = 64,
        DarkenIntensityCompositeOp = 65,
        LightenIntensityCompositeOp = 66,
        HardMixCompositeOp = 67,
    };

    /// Whether the operators are equal.
    bool operator==(const SettingsEffectCompose& other) const;

    CompositeOperator m_operator = CompositeOperator::UndefinedCompositeOp;
};

} // namespace Ombrel::Proc

#endif
