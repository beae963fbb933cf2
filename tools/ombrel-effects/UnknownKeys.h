#ifndef OMBREL_EFFECTS_TOOL_UNKNOWN_KEYS_H
#define OMBREL_EFFECTS_TOOL_UNKNOWN_KEYS_H

#include "EffectReader.h"
#include "PropertyPath.h"
#include "PropertyTree/PropertyTree.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// Finds the keys of stored effects that the library ignores, at any depth.
///
/// A key that the library writes is known. A key that it does not write is unknown or has its default. The library does not say
/// which, so other values are tried for the key. If the library reads all of them and none changes the effect, the key is
/// unknown.
class UnknownKeys
{
public:
    /// The places of the unknown keys of an element. `effect` is what the library has read from it. Keys below an unknown key
    /// are not listed.
    std::vector<Path> In(const PropertyTree& element, const EffectPtr& effect);

private:
    void Visit(const PropertyTree& given, const PropertyTree* written, const Path& place, const std::string& pattern);
    bool IsKnown(const Path& place, const std::string& pattern);
    bool DoesAnyValueMatter(const Path& place);

    PropertyTree m_element;
    std::optional<std::string> m_form;
    std::vector<Path> m_found;
    std::map<std::string, bool> m_known; // by pattern: the path with the class ids on the way and without list indices
};

} // namespace Ombrel::EffectsTool

#endif
