#ifndef OMBREL_INSPECTION_CHANGES_H
#define OMBREL_INSPECTION_CHANGES_H

#include "Inspection/Path.h"
#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace Ombrel::PhotoCore
{
class IEffectSettings;
}

namespace Ombrel::Inspection
{

/// What a change does.
enum class ChangeKind : std::uint8_t
{
    Value,  // a value becomes another; a key that no class knows comes or goes
    Insert, // an element of a list
    Remove,
    Move,
};

/// A step from one tree to the next. Its values are full ones, as `Freeze` gives them: a key that is missing has its default.
/// An effect that is put into the list of the document, taken out or moved there is as it is stored.
struct Change
{
    /// What the file holds at a place, or nothing. The place is that of the change, or around it where the file has no record
    /// or list at the place: then it gets the whole one.
    struct Storing
    {
        Path path = {};                          // of the value in the file
        std::optional<PropertyTree> before = {}; // what stands there before the change
        std::optional<PropertyTree> after = {};  // what stands there after it
    };

    /// What is done at `path`.
    ChangeKind kind = ChangeKind::Value;
    bool isUnordered = false; // the value is a set or a map of colours
    Path path = {};           // of the value, or of the element; for the latter as long as it is there
    std::size_t target = 0;   // of a move: the index that the element then has, counted without it
    std::optional<PropertyTree> before = {};
    std::optional<PropertyTree> after = {};
    /// The same in the tree as it is stored.
    Storing stored = {};
};

/// Changes in their order. Each path is that in the tree to which all changes before it have been applied. A list owns all that
/// it holds, and refers to no tree.
///
/// Threads: any number may use the functions below at once, also with one and the same tree or list that none of them changes.
using ChangeList = std::vector<Change>;

/// The change in one line, for people: "2/smartBlur/lumaRadius: 100 -> 50".
OMBREL_INSPECTION_API std::string TextOf(const Change& change);

/// What must be changed in one stored effect, or a list of them, so that it means the same as another: what is read of both is
/// compared, so it is empty if and only if `Freeze` makes the same of both. Numbers are compared by value, and a NaN is a NaN.
/// What is not known, and values that have an error or a warning, are compared as they stand.
///
/// Effects in lists are found again by their class id and content; elements of other lists are those with the same index. A set
/// or a map of colours has no order.
/// @throws std::bad_alloc and nothing else, whatever the trees hold
OMBREL_INSPECTION_API ChangeList Diff(const PropertyTree& before, const PropertyTree& after);

/// The changes that take these back.
OMBREL_INSPECTION_API ChangeList Inverse(ChangeList changes);

/// The changes one after the other. What becomes one change is one: the first value and the last of 40 that were typed into a
/// slider.
OMBREL_INSPECTION_API ChangeList Joined(ChangeList first, const ChangeList& second);

/// The value that a change was made from is not there.
class OMBREL_INSPECTION_API ConflictError : public std::runtime_error
{
public:
    /// Found `found` at `place` where `expected` should be; nothing stands for a value that is not there.
    ConflictError(const Path& place, const std::optional<PropertyTree>& expected, const std::optional<PropertyTree>& found);
    ConflictError(const ConflictError&) noexcept;
    ConflictError& operator=(const ConflictError&) noexcept;
    ~ConflictError() override;

    /// Where the value should have been.
    const Path& Place() const noexcept;

    /// The full value of the change, and of the tree; nothing where there is none.
    const std::optional<PropertyTree>& Expected() const noexcept;
    const std::optional<PropertyTree>& Found() const noexcept;

private:
    struct Values;
    std::shared_ptr<const Values> m_values;
};

/// Changes a stored effect or a list of them, all or nothing. All that the changes do not name stays as it stands. After `Diff`
/// the tree means the same as the other one, and the changes that take these back give the tree as it stood.
/// @throws ConflictError if a value is not what it was before the change, std::bad_alloc; the tree is then as it was
OMBREL_INSPECTION_API void Apply(std::span<const Change> changes, PropertyTree& effectOrList);

/// The same for effects, whose paths begin with their index. An effect that is changed is replaced by a new object, so that
/// what a read leaves alone, such as the helper settings, comes from its tree too.
/// @throws ConflictError, and what writing and reading an effect throws; the effects are then as they were
OMBREL_INSPECTION_API void Apply(std::span<const Change> changes,
                                 std::vector<std::shared_ptr<PhotoCore::IEffectSettings>>& effects);

} // namespace Ombrel::Inspection

#endif
