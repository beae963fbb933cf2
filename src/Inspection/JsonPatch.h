#ifndef OMBREL_INSPECTION_JSON_PATCH_H
#define OMBREL_INSPECTION_JSON_PATCH_H

#include "Inspection/Changes.h"
#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <limits>
#include <span>
#include <stdexcept>
#include <string>

namespace Ombrel::Inspection
{

/// The changes as a JSON Patch (RFC 6902) of the stored effects that `Diff` was given first, for programs that know nothing of
/// effects. Before each value that is replaced, removed or moved a "test" says what must be there. A key in a record that is
/// not stored comes with the whole record.
OMBREL_INSPECTION_API PropertyTree ToJsonPatch(std::span<const Change> changes);

/// Limits for patches from strangers.
struct JsonPatchOptions
{
    /// How many values all "copy" operations may copy together. Each may double the tree.
    std::size_t maxCopied = std::numeric_limits<std::size_t>::max();
};

/// A patch is none, or does not fit the tree.
class OMBREL_INSPECTION_API JsonPatchError : public std::runtime_error
{
public:
    /// The operation counts from 0.
    JsonPatchError(std::size_t operation, const std::string& reason);
    JsonPatchError(const JsonPatchError&) noexcept;
    JsonPatchError& operator=(const JsonPatchError&) noexcept;
    ~JsonPatchError() override;

    /// Which operation of the patch could not be done, from 0.
    std::size_t Operation() const noexcept { return m_operation; }

private:
    std::size_t m_operation;
};

/// Does the operations of any JSON Patch, by the rules of RFC 6902: all or nothing. It need not be of this library, and the
/// tree need not hold effects.
/// @throws JsonPatchError, std::bad_alloc; the tree is then as it was
OMBREL_INSPECTION_API void ApplyJsonPatch(const PropertyTree& patch, PropertyTree& tree, const JsonPatchOptions& options = {});

} // namespace Ombrel::Inspection

#endif
