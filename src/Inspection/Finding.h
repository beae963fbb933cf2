#ifndef OMBREL_INSPECTION_FINDING_H
#define OMBREL_INSPECTION_FINDING_H

#include "Inspection/Path.h"
#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace Ombrel::Inspection
{

enum class Severity : std::uint8_t
{
    Error,   // a read throws here
    Warning, // a read changes or loses something
    Note,
};

enum class FindingCode : std::uint8_t
{
    // Errors.
    NoName,
    UnknownEffect,
    WrongKind,
    BadColour,
    NumberTooLarge,
    TooDeep,
    NotAnEffect,
    NotRegistered,
    Refused,

    // Warnings.
    UnknownName,
    NumberForName,
    CutInteger,
    TruncatedFloat,
    NarrowedFloat,
    ColourNotCanonical,
    IgnoredValue,
    DuplicateElement,
    UnknownKey,
    LostByCopy,
    ChangesOnWrite,

    // Notes.
    DefaultWritten,
    NullEffect,
    RaggedRows,
    NotANumber,
    NoSchema,
};

/// The text of a code, such as "unknown-name". It never changes.
OMBREL_API std::string_view TextOf(FindingCode code) noexcept;

OMBREL_API Severity SeverityOf(FindingCode code) noexcept;

/// "error", "warning" or "note".
OMBREL_API std::string_view TextOf(Severity severity) noexcept;

/// How a finding can be mended.
enum class Mend : std::uint8_t
{
    None,
    Replace,       // by what the value becomes
    Remove,        // the key or the element goes
    RemoveElement, // the element of the list goes in which the value stands
};

/// What was found at one place of a tree.
struct Finding
{
    Path path;
    FindingCode code = FindingCode::NoName;
    Mend mend = Mend::None;
    std::string message;  // for people; may change
    std::string expected; // what may stand there, for people; empty where nothing may
    std::string nearest;  // the known name or key that is most like what was found; empty where none is likely
    PropertyTree found;   // null where something is missing
    PropertyTree becomes; // when it is read and written again; null where the read fails or loses it
};

/// The tree with all that can be mended. Findings whose place is not there are passed over.
/// @param findings what `Check` said of the tree
OMBREL_API PropertyTree Mended(PropertyTree tree, std::span<const Finding> findings);

} // namespace Ombrel::Inspection

#endif
