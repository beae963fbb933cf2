#include "Proc/ImplNames.h"

#include "Proc/EarlyInit.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string ImplNames::DEFAULT{DEFAULT_NAME};
OMBREL_EARLY_INIT const std::string ImplNames::FFMPEG{FFMPEG_NAME};

} // namespace Ombrel::Proc
