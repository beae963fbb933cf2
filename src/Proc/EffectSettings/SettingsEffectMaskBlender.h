#ifndef OMBREL_PROC_EFFECT_SETTINGS_SETTINGS_EFFECT_MASK_BLENDER_H
#define OMBREL_PROC_EFFECT_SETTINGS_SETTINGS_EFFECT_MASK_BLENDER_H

#include "Proc/EffectSettings/IEffectSettings.h"
#include "Proc/EffectSettings/SharedValues.h"
#include "Proc/Settings/SettingsEffectShapeMask.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace Ombrel::PhotoCore
{

/// The effects of the foreground and of the background of a mask, with the mask. A list that is built one effect at a time
/// holds at most one of each class id. Null effects may stand in a list given whole and are passed over.
///
/// Ownership: effects are shared with whoever gave them and with every copy of the record, which clones none of them.
class OMBREL_API SettingsEffectMaskBlender : public Proc::SettingsRecord<SettingsEffectMaskBlender>
{
public:
    static constexpr const char* CLASS_NAME = "EffectsPackageOneInputWithBrush";
    static const std::string CLASS_ID;
    static const Proc::RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// One effect, and a list of them as the record holds it.
    using Effect = std::shared_ptr<const IEffectSettings>;
    using EffectList = IEffectSettings::ConstList;

    /// The bounds of the mask.
    enum class SizeOptimization : std::int32_t
    {
        ShapeSizeBased = 0,
        FrameSizeBased = 1,
    };

    /// No effects, strength 0, and a mask that lets the foreground through inside its shape alone: unlike a mask by itself, it
    /// has foreground 0 and background 255.
    SettingsEffectMaskBlender();

    SettingsEffectMaskBlender(const SettingsEffectMaskBlender&);
    SettingsEffectMaskBlender(SettingsEffectMaskBlender&&) noexcept;
    SettingsEffectMaskBlender& operator=(const SettingsEffectMaskBlender& other);
    SettingsEffectMaskBlender& operator=(SettingsEffectMaskBlender&&) noexcept;
    ~SettingsEffectMaskBlender() override;

    /// True if the record of every effect is empty, or else if the strength is 255, whatever the effects do.
    bool IsEmpty() const override;

    /// The effects in their order. The list belongs to this record.
    const EffectList& GetForegroundEffects() const { return m_foregroundEffects; }
    const EffectList& GetBackgroundEffects() const { return m_backgroundEffects; }

    /// Replaces the whole list; a record's own list is left as it is.
    void SetForegroundEffects(const EffectList& effects) { SetEffectsImpl(effects, false); }
    void SetBackgroundEffects(const EffectList& effects) { SetEffectsImpl(effects, true); }

    /// The first effect whose record has the class id, or an empty pointer.
    Effect GetForegroundEffect(const std::string& classId) const;
    Effect GetBackgroundEffect(const std::string& classId) const;

    /// Puts the effect, which must not be null, in the place of the first whose record has the effect's own class id, or at the
    /// end if there is none.
    void SetForegroundEffect(Effect effect) { SetEffectImpl(std::move(effect), false); }
    void SetBackgroundEffect(Effect effect) { SetEffectImpl(std::move(effect), true); }

    /// Takes away the first effect whose record has the class id, and says whether there was one.
    bool EraseForegroundEffect(const std::string& classId) { return EraseEffectImpl(classId, false); }
    bool EraseBackgroundEffect(const std::string& classId) { return EraseEffectImpl(classId, true); }

    /// What the bounds of the mask follow. Callers know the getter without const.
    SizeOptimization GetOptimizationMode() { return m_optimizationMode; }
    void SetOptimizationMode(SizeOptimization value) { m_optimizationMode = value; }

    /// The mask.
    const Proc::SettingsEffectShapeMask& GetAlpha() const { return m_alpha; }
    void SetAlpha(const Proc::SettingsEffectShapeMask& value) { m_alpha = value; }

    /// Whether the mask comes from outside the record. Stored as given; false by default.
    bool GetUseExternalMask() const { return m_useExternalMask; }
    void SetUseExternalMask(bool value) { m_useExternalMask = value; }

    /// How strongly the two sides are blended. Any number is stored as given; with 255 the record is empty.
    std::int32_t GetBlendingStrength() const { return m_blendingStrength; }
    void SetBlendingStrength(std::int32_t value) { m_blendingStrength = value; }

    /// Whether the two frames change places where there is a mask. It is never stored, and no comparison looks at it.
    bool GetSwapFramesIfMaskFound() const { return m_swapFramesIfMaskFound; }
    void SetSwapFramesIfMaskFound(bool value) { m_swapFramesIfMaskFound = value; }

    /// `Const::NO_VALUE` if there is no background frame.
    std::uint32_t GetBackgroundFrameIndex() const { return m_backgroundIndex; }
    void SetBackgroundFrameIndex(std::uint32_t value) { m_backgroundIndex = value; }

    /// Whether the masks are equal.
    bool IsAlphaEqual(const SettingsEffectMaskBlender& other) const;

    /// Whether the effects of the foreground, or of the background, are equal.
    /// @throws what the comparison of two effects throws
    bool IsFgEffectsEqual(const SettingsEffectMaskBlender& other) const;
    bool IsBgEffectsEqual(const SettingsEffectMaskBlender& other) const;

    /// Looks at all but the background frame and the swapping of frames.
    /// @throws what the comparison of two effects throws
    bool operator==(const SettingsEffectMaskBlender& other) const;
    bool operator!=(const SettingsEffectMaskBlender& other) const { return !operator==(other); }

private:
    EffectList& EffectsOf(bool isBackground) { return isBackground ? m_backgroundEffects : m_foregroundEffects; }
    void SetEffectsImpl(const EffectList& effects, bool isBackground);
    void SetEffectImpl(Effect effect, bool isBackground);
    bool EraseEffectImpl(const std::string& classId, bool isBackground);

    EffectList m_foregroundEffects;
    EffectList m_backgroundEffects;
    SizeOptimization m_optimizationMode = SizeOptimization::ShapeSizeBased;
    Proc::SettingsEffectShapeMask m_alpha;
    bool m_useExternalMask = false;
    std::int32_t m_blendingStrength = 0;
    bool m_swapFramesIfMaskFound = false;
    std::uint32_t m_backgroundIndex = Const::NO_VALUE;
};

} // namespace Ombrel::PhotoCore

#endif
