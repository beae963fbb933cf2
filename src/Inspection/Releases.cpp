#include "Inspection/PackedTree.h"
#include "Inspection/Release.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>

namespace Ombrel::Inspection
{
namespace
{

#include "Inspection/Manifests/0.1.inc"
// scripts/release adds an include here,

struct PackedManifest
{
    std::string_view release;
    std::span<const std::uint8_t> packed;
};

constexpr PackedManifest MANIFESTS[]{
    {"0.1", MANIFEST_0_1},
    // and a row here.
};

} // namespace

std::vector<std::string_view> ReleaseNames()
{
    std::vector<std::string_view> names;
    for (const PackedManifest& manifest : MANIFESTS)
    {
        names.push_back(manifest.release);
    }
    return names;
}

std::shared_ptr<const Release> ReadRelease(std::string_view name)
{
    const auto found = std::ranges::find(MANIFESTS, name, &PackedManifest::release);
    if (found == std::end(MANIFESTS))
    {
        throw std::invalid_argument("no release \"" + std::string(name) + "\" is known");
    }
    return std::make_shared<const Release>(Unpack(found->packed));
}

} // namespace Ombrel::Inspection
