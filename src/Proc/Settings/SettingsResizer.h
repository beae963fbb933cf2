#ifndef OMBREL_PROC_SETTINGS_SETTINGS_RESIZER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_RESIZER_H

#include "Conf/FrameInfo.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// The size that the picture is brought to: a scale or a frame, whichever was entered last. It has no stored form of its own.
class OMBREL_API SettingsResizer : public SettingsRecord<SettingsResizer>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_RESIZE";
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;

    /// What gives the size. The numbers are fixed.
    enum class SizeModes : std::int32_t
    {
        Original = 0,
        CustomScale = 3,
        CustomFrame = 4,
    };

    /// How a picture of another aspect fills the frame. The numbers are fixed.
    enum class CustomModes : std::int32_t
    {
        Fit = 0,
        Fill = 1,
        Stretch = 2,
    };

    /// True if the record is as by default: no size was ever entered. With an entered scale of 1 it is not empty.
    bool IsEmpty() const override;

    /// What was entered last, or `Original`.
    SizeModes GetSizeMode() const { return m_sizeMode; }

    /// What `SetCustomMode` was given last.
    CustomModes GetCustomMode() const { return m_customMode; }
    const Conf::FrameInfo& GetFrameInfo() const { return m_frameInfo; }

    /// Enters the custom-frame mode. The frame is stored as given.
    void SetCustomMode(CustomModes mode, const Conf::FrameInfo& frame);

    /// What `SetCustomScale` was given last; 1 before that.
    double GetScaleFactor() const { return m_scaleFactor; }

    /// Enters the custom-scale mode. The factor is stored as given; 1 is the original size.
    void SetCustomScale(double scale);

    /// Compares everything, also what the present mode does not use.
    bool operator==(const SettingsResizer& other) const;

private:
    SizeModes m_sizeMode = SizeModes::Original;
    CustomModes m_customMode = CustomModes::Stretch;
    Conf::FrameInfo m_frameInfo;
    double m_scaleFactor = 1.0;
};

} // namespace Ombrel::Proc

#endif
