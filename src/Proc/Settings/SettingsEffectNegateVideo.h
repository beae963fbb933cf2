#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_NEGATE_VIDEO_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_NEGATE_VIDEO_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>
#include <set>

namespace Ombrel::Proc
{

/// Negates channels of the picture.
class OMBREL_API SettingsEffectNegateVideo : public SettingsRecord<SettingsEffectNegateVideo>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_NEGATE_VIDEO";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// Each channel is a bit of its own in the mask.
    enum class Channel : std::int32_t
    {
        Red = 1,
        Green = 2,
        Blue = 4,
        Alpha = 8,
    };

    /// True if the mask is 0, as by default. With a bit that belongs to no channel the record is not empty, although it negates
    /// nothing.
    bool IsEmpty() const override;

    /// The channels whose bits are set; a bit that belongs to no channel is passed over.
    std::set<Channel> GetMode() const;

    /// Replaces the mask by all the values together, 0 included, which has no bit.
    void SetMode(const std::set<Channel>& channels);

    /// Whether the modes are equal, bits of no channel too.
    bool operator==(const SettingsEffectNegateVideo& other) const;

private:
    std::int32_t m_mode = 0;
};

} // namespace Ombrel::Proc

#endif
