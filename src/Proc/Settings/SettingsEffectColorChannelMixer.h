#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_CHANNEL_MIXER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_CHANNEL_MIXER_H

#include "Proc/Settings/SettingsRecord.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Ombrel::Proc
{

/// A matrix of factors: each channel of the result is a row. Every factor is stored as given; the identity, which is the
/// default, changes nothing.
class OMBREL_API SettingsEffectColorChannelMixer : public SettingsRecord<SettingsEffectColorChannelMixer>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_COLOR_CHANNEL_MIXER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// A row or a column of the matrix.
    enum class Channel : std::int32_t
    {
        R = 0,
        G = 1,
        B = 2,
        A = 3,
    };

    /// True if the matrix is the identity, as by default.
    bool IsEmpty() const override;

    /// How much of the channel `column` goes into the channel `row`.
    /// @throws std::out_of_range if one of the two is no channel
    double GetFactor(Channel row, Channel column) const { return m_factors.at(Index(row)).at(Index(column)); }
    void SetFactor(Channel row, Channel column, double value) { m_factors.at(Index(row)).at(Index(column)) = value; }

    /// Whether all sixteen factors are equal.
    bool operator==(const SettingsEffectColorChannelMixer& other) const;

private:
    static std::size_t Index(Channel channel) { return static_cast<std::size_t>(channel); }

    std::array<std::array<double, 4>, 4> m_factors{{
        {1.0, 0.0, 0.0, 0.0},
        {0.0, 1.0, 0.0, 0.0},
        {0.0, 0.0, 1.0, 0.0},
        {0.0, 0.0, 0.0, 1.0},
    }};
};

} // namespace Ombrel::Proc

#endif
