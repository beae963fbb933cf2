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

/// Finds the keys of stored effects that the library reads over, at any depth.
///
/// A key that the library writes itself is known. Of one that it leaves out, nobody can tell from the outside whether it has
/// its default or is unknown, least of all in effects within effects and in classes without a property access. So other
/// values are tried in its place: if all of them are read and none changes the effect, the key is unknown.
class UnknownKeys
{
public:
    /// The places of the unknown keys of an element, of which the library has read `effect`. What stands below an unknown key
    /// is not named.
    std::vector<Path> In(const PropertyTree& element, const EffectPtr& effect);

private:
    void Visit(const PropertyTree& given, const PropertyTree* written, const Path& place, const std::string& pattern);
    bool IsKnown(const Path& place, const std::string& pattern);
    bool DoesAnyValueMatter(const Path& place);

    PropertyTree m_element;
    std::optional<std::string> m_form;
    std::vector<Path> m_found;
    std::map<std::string, bool> m_known; // by pattern, which says the class ids on the way and no list indices
};

} // namespace Ombrel::EffectsTool

#endif
