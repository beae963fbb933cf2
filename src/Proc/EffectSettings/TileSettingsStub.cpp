#include "Proc/EffectSettings/TileSettingsStub.h"

namespace Ombrel::PhotoCore
{

const std::string TileSettingsStub::CLASS_ID{CLASS_NAME};

TileSettingsStub::~TileSettingsStub() = default;

} // namespace Ombrel::PhotoCore
