#ifndef OMBREL_PROC_EFFECT_SETTINGS_STORED_TEXTS_H
#define OMBREL_PROC_EFFECT_SETTINGS_STORED_TEXTS_H

#include "OmbrelExport.h"

#include <string_view>
#include <vector>

namespace Ombrel::PhotoCore
{

/// The texts that the library's effects write into trees: their class ids, the keys of their fields at every level, and the
/// names of their enumerations. A text may be named several times.
OMBREL_LOCAL std::vector<std::string_view> ListStoredTexts();

} // namespace Ombrel::PhotoCore

#endif
