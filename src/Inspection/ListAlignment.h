#ifndef OMBREL_INSPECTION_LIST_ALIGNMENT_H
#define OMBREL_INSPECTION_LIST_ALIGNMENT_H

#include "Inspection/Fingerprints.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

namespace Ombrel::Inspection
{

/// Finds the elements of a list again after it was changed. In time that is linear in the number of elements and of their
/// children.
class ListAlignment
{
public:
    static constexpr std::size_t NONE = static_cast<std::size_t>(-1);

    /// @param areEffects elements with another class id are never the same
    ListAlignment(std::span<const PropertyTree> before, std::span<const PropertyTree> now, bool areEffects,
                  Fingerprints& prints);

    /// Which element of `before` each of `now` was, or `NONE`. No two are the same.
    const std::vector<std::size_t>& Origins() const noexcept { return m_origins; }

private:
    struct Element
    {
        const PropertyTree* tree;
        std::uint64_t print;
        std::uint64_t kind; // only elements of one kind can be the same
    };

    // Where a part of elements was seen last, and how often.
    struct SeenPart
    {
        std::size_t index = 0;
        std::size_t count = 0;
    };
    using SeenParts = std::unordered_map<std::uint64_t, SeenPart>;

    // Elements that were not found again, in both lists behind the same neighbour or at the beginning.
    struct Run
    {
        std::size_t now;
        std::size_t nowEnd;
        std::size_t before;
        std::size_t beforeEnd;
    };

    static std::vector<Element> ElementsOf(std::span<const PropertyTree> list, bool areEffects, Fingerprints& prints);
    template <class IsLeft>
    static SeenParts PartsOf(const std::vector<Element>& elements, Fingerprints& prints, const IsLeft& isLeft);
    void Match(std::size_t now, std::size_t before) noexcept;
    void MatchEnds();
    void MatchEqual();
    void MatchByParts(Fingerprints& prints);
    std::vector<std::size_t> Candidates() const;
    std::vector<Run> Runs() const;
    void MatchRun(const Run& run);

    std::vector<Element> m_before;
    std::vector<Element> m_now;
    std::vector<std::size_t> m_origins; // by index in `now`
    std::vector<bool> m_isFound;        // by index in `before`
    std::size_t m_left = 0;             // of `now`, those without an origin
};

} // namespace Ombrel::Inspection

#endif
