#include "Proc/EffectSettings/EmptySettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectEmpty, EmptySettings>;

EmptySettings::~EmptySettings() = default;

bool EmptySettings::operator==(const EmptySettings&) const
{
    return true;
}

} // namespace Ombrel::PhotoCore
