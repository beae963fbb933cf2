#ifndef OMBREL_INSPECTION_FINGERPRINTS_H
#define OMBREL_INSPECTION_FINGERPRINTS_H

#include "PropertyTree/PropertyTree.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>

namespace Ombrel::Inspection
{

/// Numbers by which trees are told apart: those of the same trees are equal, those of others most likely not. Each part of a
/// tree is looked at once. The trees must stay as they are and where they are.
class Fingerprints
{
public:
    std::uint64_t Of(const PropertyTree& tree);

    static std::uint64_t OfText(std::string_view text) noexcept;
    static std::uint64_t Joined(std::uint64_t first, std::uint64_t second) noexcept;

private:
    std::uint64_t OfContent(const PropertyTree& tree);

    std::unordered_map<const PropertyTree*, std::uint64_t> m_known; // of lists and maps
};

} // namespace Ombrel::Inspection

#endif
