#include "Proc/Settings/SettingsEffectColorChannelMixer.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{
namespace
{

struct ChannelMixerFields
{
    using Mixer = SettingsEffectColorChannelMixer;
    using Channel = Mixer::Channel;
    using enum Mixer::Channel;

    template <Channel Row, Channel Column> static void Set(Mixer& record, double value)
    {
        record.SetFactor(Row, Column, value);
    }

    template <Channel Row, Channel Column> static double Get(const Mixer& record) { return record.GetFactor(Row, Column); }

    template <KeyText Key, Channel Row, Channel Column>
    struct Factor : AccessorDescriptor<Key, &Set<Row, Column>, &Get<Row, Column>>
    {
        static constexpr std::string_view ACCESS = "SetFactor, GetFactor";
    };

    // clang-format off
    using List = FieldList<Factor<"RR", R, R>, Factor<"RG", R, G>, Factor<"RB", R, B>, Factor<"RA", R, A>,
                           Factor<"GR", G, R>, Factor<"GG", G, G>, Factor<"GB", G, B>, Factor<"GA", G, A>,
                           Factor<"BR", B, R>, Factor<"BG", B, G>, Factor<"BB", B, B>, Factor<"BA", B, A>,
                           Factor<"AR", A, R>, Factor<"AG", A, G>, Factor<"AB", A, B>, Factor<"AA", A, A>>;
    // clang-format on
};

} // namespace

OMBREL_EARLY_INIT const std::string SettingsEffectColorChannelMixer::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectColorChannelMixer::GetClassId() const
{
    return ClassIdOf<SettingsEffectColorChannelMixer>();
}

const RecordSchema& SettingsEffectColorChannelMixer::Schema() noexcept
{
    return Describe<SettingsEffectColorChannelMixer, ChannelMixerFields::List>();
}

bool SettingsEffectColorChannelMixer::IsEmpty() const
{
    return *this == Reflected<SettingsEffectColorChannelMixer>::Default();
}

bool SettingsEffectColorChannelMixer::operator==(const SettingsEffectColorChannelMixer& other) const
{
    return m_factors == other.m_factors;
}

} // namespace Ombrel::Proc
