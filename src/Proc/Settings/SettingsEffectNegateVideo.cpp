#include "Proc/Settings/SettingsEffectNegateVideo.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectNegateVideo::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectNegateVideo::GetClassId() const
{
    return ClassIdOf<SettingsEffectNegateVideo>();
}

template <> struct EnumNames<SettingsEffectNegateVideo::Channel>
{
    using E = SettingsEffectNegateVideo::Channel;

    static constexpr EnumNameRow ROWS[] = {
        {"Red", E::Red},
        {"Green", E::Green},
        {"Blue", E::Blue},
        {"Alpha", E::Alpha},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectNegateVideo::Schema() noexcept
{
    using R = SettingsEffectNegateVideo;
    return Describe<R, FieldList<AccessorDescriptor<"mode", &R::SetMode, &R::GetMode>>>();
}

bool SettingsEffectNegateVideo::IsEmpty() const
{
    return *this == Reflected<SettingsEffectNegateVideo>::Default();
}

std::set<SettingsEffectNegateVideo::Channel> SettingsEffectNegateVideo::GetMode() const
{
    std::set<Channel> channels;
    for (const Channel channel : {Channel::Red, Channel::Green, Channel::Blue, Channel::Alpha})
    {
        if ((m_mode & static_cast<std::int32_t>(channel)) != 0)
        {
            channels.insert(channel);
        }
    }
    return channels;
}

void SettingsEffectNegateVideo::SetMode(const std::set<Channel>& channels)
{
    m_mode = 0;
    for (const Channel channel : channels)
    {
        m_mode |= static_cast<std::int32_t>(channel);
    }
}

bool SettingsEffectNegateVideo::operator==(const SettingsEffectNegateVideo& other) const
{
    return m_mode == other.m_mode; // bits of no channel too, which the field list does not see
}

} // namespace Ombrel::Proc
