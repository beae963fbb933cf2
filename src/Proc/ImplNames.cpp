#include "Proc/ImplNames.h"

namespace Ombrel::Proc
{

const std::string ImplNames::DEFAULT{DEFAULT_NAME};
const std::string ImplNames::FFMPEG{FFMPEG_NAME};

} // namespace Ombrel::Proc
