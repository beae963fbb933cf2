#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_EDGE_DETECT_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_EDGE_DETECT_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Every value is stored as given.
class OMBREL_API SettingsEffectEdgeDetect : public ComparedRecord<SettingsEffectEdgeDetect>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_EDGE_DETECT";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class EdgeDetectMode : std::int32_t
    {
        None = 0,
        Wires = 1,
        Colormix = 2,
    };

    /// True if the record is as by default.
    bool IsEmpty() const override;

    EdgeDetectMode GetMode() const { return m_mode; }
    void SetMode(EdgeDetectMode value) { m_mode = value; }

    double GetLowThreshold() const { return m_lowThreshold; }
    void SetLowThreshold(double value) { m_lowThreshold = value; }

    double GetHighThreshold() const { return m_highThreshold; }
    void SetHighThreshold(double value) { m_highThreshold = value; }

private:
    EdgeDetectMode m_mode = EdgeDetectMode::None;
    double m_lowThreshold = 0.0;
    double m_highThreshold = 0.0;
};

} // namespace Ombrel::Proc

#endif
