#ifndef OMBREL_PROC_EFFECT_SETTINGS_RESIZE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_RESIZE_SETTINGS_H

#include "Conf/FrameInfo.h"
#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsResizer.h"

#include <cstdint>
#include <string>

namespace Ombrel::PhotoCore
{

/// The resizer. What is stored is not its record but what the caller entered: resolution, unit, frame and scale factor. The
/// latter two are mirrors of the record, refreshed when it is written, and given back to it when they are read.
///
/// The record's mode is not stored. A frame or a scale is therefore restored only into a record that is in that mode already,
/// as the one that the effect's creator has set up. There is no property access.
///
/// Threads: `Serialize` writes the mirrors, although it is const: while it runs, no other thread may use the object.
class OMBREL_API ResizeSettings : public EffectSettingsOneInputReflection<Proc::SettingsResizer, ResizeSettings>
{
public:
    /// The unit in which the caller entered the size. The record knows pixels alone.
    enum class SizeUOM : std::int32_t
    {
        pixels = 0,
        percents = 1,
        cm = 2,
        inches = 3,
        mm = 4,
        points = 5,
    };

    static const Proc::RecordSchema& Schema() noexcept;

    /// Names of the resizer's parameters, for callers; none of them is used as a stored key.
    static const std::string FRAME_SIZE_MODE;
    static const std::string SCALE_FACTOR;
    static const std::string MODE;
    static const std::string METHOD;
    static const std::string UOM;

    using EffectSettingsImpl::operator==;
    using EffectSettingsReflection::EffectSettingsReflection;

    ResizeSettings();
    ResizeSettings(const ResizeSettings&);
    ResizeSettings(ResizeSettings&&) noexcept;
    ResizeSettings& operator=(const ResizeSettings&);
    ResizeSettings& operator=(ResizeSettings&&) noexcept;
    ~ResizeSettings() override;

    const std::string& GetClassId() const override;

    /// What was entered with a physical unit; -1 for none.
    double GetResolution() const { return m_resolution; }
    void SetResolution(double value) { m_resolution = value; }

    /// The unit in which the size was entered. Callers know the getter without const.
    SizeUOM GetUOM() { return m_uom; }
    void SetUOM(SizeUOM value) { m_uom = value; }

    /// `Proc::ImplNames::FFMPEG`, whatever name is stored.
    const std::string& GetImplName() const override;

    /// Refreshes the mirror that belongs to the record's mode before it writes.
    void Serialize(PropertyTree& tree) const override;

    /// Hands the frame or the scale that was read to a record in that mode, and leaves any other record alone.
    /// @throws Exception "Aspect is not specified" if the record takes a frame and the frame has no aspect; the record is then
    ///         unchanged, and everything else read
    void Deserialize(const PropertyTree& tree) override;

    /// Equal records, and resolutions less than 1e-5 apart, where a NaN equals nothing; unit and mirrors play no part.
    bool operator==(const ResizeSettings& other) const override;

    /// Lets the left effect answer. Without it the compiler would turn the two round, since this class is an exact match.
    friend bool operator==(const IEffectSettings& a, const ResizeSettings& b)
    {
        return a.operator==(static_cast<const IEffectSettings&>(b));
    }

private:
    OMBREL_LOCAL void RefreshMirrors() const;

    double m_resolution = -1.0;
    SizeUOM m_uom = SizeUOM::pixels;
    mutable Conf::FrameInfo m_frameInfo;
    mutable Proc::SettingsResizer::CustomModes m_customMode = Proc::SettingsResizer::CustomModes::Stretch; // has no key
    mutable double m_scaleFactor = 1.0;
};

} // namespace Ombrel::PhotoCore

#endif
