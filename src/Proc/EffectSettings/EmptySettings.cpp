#include "Proc/EffectSettings/EmptySettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectEmpty, EmptySettings>;

const std::string& EmptySettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool EmptySettings::operator==(const EmptySettings&) const
{
    return true;
}

} // namespace Ombrel::PhotoCore
