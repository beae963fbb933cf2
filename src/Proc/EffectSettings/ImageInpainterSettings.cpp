#include "Proc/EffectSettings/ImageInpainterSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectImageInpainter, ImageInpainterSettings>;

ImageInpainterSettings::~ImageInpainterSettings() = default;

} // namespace Ombrel::PhotoCore
