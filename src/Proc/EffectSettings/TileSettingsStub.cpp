#include "Proc/EffectSettings/TileSettingsStub.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::PhotoCore
{

OMBREL_EARLY_INIT const std::string TileSettingsStub::CLASS_ID = Proc::ClassIdText(CLASS_NAME);

const std::string& TileSettingsStub::GetClassId() const
{
    return Proc::ClassIdOf<TileSettingsStub>();
}

} // namespace Ombrel::PhotoCore
