#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SEGMENTATION_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SEGMENTATION_H

#include "Proc/Settings/BaseSettingsModelFile.h"
#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectSegmentation : public SettingsRecord<SettingsEffectSegmentation, BaseSettingsModelFile>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_SEGMENTATION";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class SegmentationAlgorithm : std::int32_t
    {
        Auto = 0,
        GrabCut = 1,
        GridGraph = 2,
        Watershed = 3,
    };

    /// Looks at everything but the two demo members.
    bool operator==(const SettingsEffectSegmentation& other) const;

    SegmentationAlgorithm m_algorithm = SegmentationAlgorithm::GridGraph; // an unknown name reads as `Auto` all the same
    std::int32_t m_foreground = 255;
    std::int32_t m_background = 0;
    std::int32_t m_alpha = 255;
    std::int32_t m_smooth = 0;
    bool m_keepSelection = false;
    bool m_showProgress = true;
    bool m_demoMode = false;
    RgbaColor m_demoColor{0, 255, 0, 255};
};

} // namespace Ombrel::Proc

#endif
