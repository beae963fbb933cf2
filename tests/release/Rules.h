#ifndef OMBREL_TESTS_RELEASE_RULES_H
#define OMBREL_TESTS_RELEASE_RULES_H

#include "PropertyTree/PropertyTree.h"

#include <string>
#include <vector>

// What a later build may not do to what a release stored.
namespace Release
{

/// One way in which a build differs from a release.
struct Break
{
    std::string rule;  // "default-changed"
    std::string place; // "EFFECT_ACID/radius"
    std::string what;  // "0 -> 5"

    /// "default-changed EFFECT_ACID/radius: 0 -> 5": what a line of breaks.md names.
    std::string Id() const;

    /// The same, and why it is forbidden.
    std::string Text() const;
};

struct Comparison
{
    std::vector<Break> breaks;
    std::vector<std::string> additions; // classes, keys and names, which are allowed
};

/// Compares the manifest of a release with that of a later build.
Comparison Compare(const Ombrel::PropertyTree& frozen, const Ombrel::PropertyTree& later);

/// Compares what a later build makes of a sample with what the release made of it. Keys that are new count for nothing.
/// @param expected with "full", "empty" and "written", or "refused"
std::vector<Break> CompareOutcomes(const std::string& classId, const std::string& sample, const Ombrel::PropertyTree& expected,
                                   const Ombrel::PropertyTree& found);

/// The lines of breaks.md: "- `0.1 default-changed EFFECT_ACID/radius: 0 -> 5` Why." A line of a place lets the samples pass
/// that differ there.
class WantedBreaks
{
public:
    /// @throws std::runtime_error for a line without a reason
    explicit WantedBreaks(const std::string& text);

    bool IsWanted(const std::string& release, const Break& change);

    /// The lines that nothing needed.
    std::vector<std::string> Unused() const;

private:
    struct Line
    {
        std::string id;
        bool isUsed = false;
    };

    std::vector<Line> m_lines;
};

} // namespace Release

#endif
