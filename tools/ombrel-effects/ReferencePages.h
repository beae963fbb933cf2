#ifndef OMBREL_EFFECTS_TOOL_REFERENCE_PAGES_H
#define OMBREL_EFFECTS_TOOL_REFERENCE_PAGES_H

#include "ReferenceNotes.h"
#include "ReferenceSections.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// The Markdown of one page. Each class has two anchors: the one of its heading, and its class id in lower case.
std::string PageText(const ReferenceNotes& notes, std::size_t page, const ReferenceSections& sections);

/// The Markdown of the index: the pages, how to read them, and all classes by name.
std::string IndexText(const std::vector<ReferencePage>& pages);

} // namespace Ombrel::EffectsTool

#endif
