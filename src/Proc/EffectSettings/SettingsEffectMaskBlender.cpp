#include "Proc/EffectSettings/SettingsEffectMaskBlender.h"

#include "Proc/EffectSettings/EffectPointerCodec.h"
#include "Proc/Settings/RecordSource.h"

#include <algorithm>
#include <utility>

namespace Ombrel::Proc
{

using PhotoCore::SettingsEffectMaskBlender;

template <> struct EnumNames<SettingsEffectMaskBlender::SizeOptimization>
{
    using E = SettingsEffectMaskBlender::SizeOptimization;

    static constexpr EnumNameRow ROWS[] = {
        {"ShapeSizeBased", E::ShapeSizeBased},
        {"FrameSizeBased", E::FrameSizeBased},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

} // namespace Ombrel::Proc

namespace Ombrel::PhotoCore
{
namespace
{

using Effect = SettingsEffectMaskBlender::Effect;
using EffectList = SettingsEffectMaskBlender::EffectList;

EffectList::iterator FindPlace(EffectList& effects, const std::string& classId)
{
    return std::ranges::find_if(effects, [&classId](const Effect& effect)
                                { return effect && effect->GetEffectSettings().GetClassId() == classId; });
}

// Asks the records: most settings classes never say that they are empty.
bool AreRecordsEmpty(const EffectList& effects)
{
    return std::ranges::all_of(effects, [](const Effect& effect) { return !effect || effect->GetEffectSettings().IsEmpty(); });
}

} // namespace

OMBREL_EARLY_INIT const std::string SettingsEffectMaskBlender::CLASS_ID = Proc::ClassIdText(CLASS_NAME);

const std::string& SettingsEffectMaskBlender::GetClassId() const
{
    return Proc::ClassIdOf<SettingsEffectMaskBlender>();
}

const Proc::RecordSchema& SettingsEffectMaskBlender::Schema() noexcept
{
    using namespace Proc;
    using R = SettingsEffectMaskBlender;
    return Describe<R, FieldList<FieldDescriptor<&R::m_foregroundEffects>, FieldDescriptor<&R::m_backgroundEffects>,
                                 FieldDescriptor<&R::m_optimizationMode>, FieldDescriptor<&R::m_alpha>,
                                 FieldDescriptor<&R::m_useExternalMask>, FieldDescriptor<&R::m_blendingStrength>,
                                 FieldDescriptor<&R::m_swapFramesIfMaskFound>, FieldDescriptor<&R::m_backgroundIndex>>>();
}

SettingsEffectMaskBlender::SettingsEffectMaskBlender()
{
    m_alpha.m_foreground = 0;
    m_alpha.m_background = 255;
}

SettingsEffectMaskBlender::SettingsEffectMaskBlender(const SettingsEffectMaskBlender&) = default;
SettingsEffectMaskBlender::SettingsEffectMaskBlender(SettingsEffectMaskBlender&&) noexcept = default;

SettingsEffectMaskBlender& SettingsEffectMaskBlender::operator=(const SettingsEffectMaskBlender& other)
{
    return *this = SettingsEffectMaskBlender(other); // copied before the old effects go: `other` may stand inside one
}

SettingsEffectMaskBlender& SettingsEffectMaskBlender::operator=(SettingsEffectMaskBlender&& other) noexcept
{
    if (this == &other)
    {
        return *this;
    }
    // The old effects go last: `other` may stand inside one.
    const EffectList foreground = std::exchange(m_foregroundEffects, std::move(other.m_foregroundEffects));
    const EffectList background = std::exchange(m_backgroundEffects, std::move(other.m_backgroundEffects));
    m_optimizationMode = other.m_optimizationMode;
    m_alpha = other.m_alpha;
    m_useExternalMask = other.m_useExternalMask;
    m_blendingStrength = other.m_blendingStrength;
    m_swapFramesIfMaskFound = other.m_swapFramesIfMaskFound;
    m_backgroundIndex = other.m_backgroundIndex;
    return *this;
}

SettingsEffectMaskBlender::~SettingsEffectMaskBlender() = default;

bool SettingsEffectMaskBlender::IsEmpty() const
{
    constexpr std::int32_t nothingShows = 255;
    return (AreRecordsEmpty(m_backgroundEffects) && AreRecordsEmpty(m_foregroundEffects)) || m_blendingStrength == nothingShows;
}

Effect SettingsEffectMaskBlender::GetForegroundEffect(const std::string& classId) const
{
    return IEffectSettings::Find(m_foregroundEffects, classId);
}

Effect SettingsEffectMaskBlender::GetBackgroundEffect(const std::string& classId) const
{
    return IEffectSettings::Find(m_backgroundEffects, classId);
}

bool SettingsEffectMaskBlender::IsAlphaEqual(const SettingsEffectMaskBlender& other) const
{
    return m_alpha == other.m_alpha;
}

bool SettingsEffectMaskBlender::IsFgEffectsEqual(const SettingsEffectMaskBlender& other) const
{
    return IEffectSettings::Equal(m_foregroundEffects, other.m_foregroundEffects);
}

bool SettingsEffectMaskBlender::IsBgEffectsEqual(const SettingsEffectMaskBlender& other) const
{
    return IEffectSettings::Equal(m_backgroundEffects, other.m_backgroundEffects);
}

bool SettingsEffectMaskBlender::operator==(const SettingsEffectMaskBlender& other) const
{
    return IsAlphaEqual(other) && m_useExternalMask == other.m_useExternalMask &&
           m_optimizationMode == other.m_optimizationMode && m_blendingStrength == other.m_blendingStrength &&
           IsBgEffectsEqual(other) && IsFgEffectsEqual(other);
}

void SettingsEffectMaskBlender::SetEffectsImpl(const EffectList& effects, bool isBackground)
{
    EffectList& own = EffectsOf(isBackground);
    if (&effects != &own)
    {
        own = EffectList(effects); // copied before the old effects go: the list may stand inside one
    }
}

void SettingsEffectMaskBlender::SetEffectImpl(Effect effect, bool isBackground)
{
    EffectList& effects = EffectsOf(isBackground);
    const auto place = FindPlace(effects, effect->GetClassId());
    if (place == effects.end())
    {
        effects.push_back(std::move(effect));
    }
    else
    {
        *place = std::move(effect);
    }
}

bool SettingsEffectMaskBlender::EraseEffectImpl(const std::string& classId, bool isBackground)
{
    EffectList& effects = EffectsOf(isBackground);
    const auto place = FindPlace(effects, classId);
    if (place == effects.end())
    {
        return false;
    }
    effects.erase(place);
    return true;
}

} // namespace Ombrel::PhotoCore
