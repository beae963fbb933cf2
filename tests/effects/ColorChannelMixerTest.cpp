#include "Proc/EffectSettings/ColorChannelMixerSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

using Ombrel::PhotoCore::ColorChannelMixerSettings;
using Ombrel::Proc::SettingsEffectColorChannelMixer;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

using Channel = SettingsEffectColorChannelMixer::Channel;

struct Cell
{
    const char* key;
    Channel row;
    Channel column;
};

constexpr Cell CELLS[] = {
    {"RR", Channel::R, Channel::R}, {"RG", Channel::R, Channel::G}, {"RB", Channel::R, Channel::B},
    {"RA", Channel::R, Channel::A}, {"GR", Channel::G, Channel::R}, {"GG", Channel::G, Channel::G},
    {"GB", Channel::G, Channel::B}, {"GA", Channel::G, Channel::A}, {"BR", Channel::B, Channel::R},
    {"BG", Channel::B, Channel::G}, {"BB", Channel::B, Channel::B}, {"BA", Channel::B, Channel::A},
    {"AR", Channel::A, Channel::R}, {"AG", Channel::A, Channel::G}, {"AB", Channel::A, Channel::B},
    {"AA", Channel::A, Channel::A},
};

TEST(ColorChannelMixer, FirstLetterOfAKeyIsTheRow)
{
    for (const Cell& cell : CELLS)
    {
        const auto effect = Restored<ColorChannelMixerSettings>(Map({{cell.key, -2.5}}));
        for (const Cell& other : CELLS)
        {
            const double byDefault = other.row == other.column ? 1.0 : 0.0;
            EXPECT_EQ(effect.GetTypedSettings().GetFactor(other.row, other.column), other.key == cell.key ? -2.5 : byDefault)
                << cell.key << ", " << other.key;
        }
    }
}

TEST(ColorChannelMixer, WritesWhatTheRecordHolds)
{
    for (const Cell& cell : CELLS)
    {
        ColorChannelMixerSettings effect;
        effect.GetTypedSettings().SetFactor(cell.row, cell.column, 0.1);
        EXPECT_EQ(StoredForm(effect), Map({{cell.key, 0.1}}));
        EXPECT_FALSE(effect.GetTypedSettings().IsEmpty()) << cell.key;
    }
}

TEST(ColorChannelMixer, RefusesWhatIsNoChannel)
{
    SettingsEffectColorChannelMixer record;
    for (const Channel none : {static_cast<Channel>(4), static_cast<Channel>(-1)})
    {
        EXPECT_THROW(record.GetFactor(none, Channel::R), std::out_of_range);
        EXPECT_THROW(record.GetFactor(Channel::R, none), std::out_of_range);
        EXPECT_THROW(record.SetFactor(none, Channel::R, 1.0), std::out_of_range);
        EXPECT_THROW(record.SetFactor(Channel::R, none, 1.0), std::out_of_range);
    }
}

} // namespace
