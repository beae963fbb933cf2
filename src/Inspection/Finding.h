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

/// How bad a finding is.
enum class Severity : std::uint8_t
{
    Error,   // a read throws here
    Warning, // a read changes or loses something
    Note,
};

/// What is wrong with a value. Each code has a text that never changes, and the severity of its group.
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
    OtherDefault, // of `Check` for a release: it reads the missing key as something else

    // Notes.
    DefaultWritten,
    NullEffect,
    RaggedRows,
    NotANumber,
    NoSchema,
};

/// The text of a code, such as "unknown-name". It never changes.
OMBREL_INSPECTION_API std::string_view TextOf(FindingCode code) noexcept;

/// How bad findings with the code are.
OMBREL_INSPECTION_API Severity SeverityOf(FindingCode code) noexcept;

/// "error", "warning" or "note".
OMBREL_INSPECTION_API std::string_view TextOf(Severity severity) noexcept;

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
    Path path;                              // of the value, or where one is missing
    FindingCode code = FindingCode::NoName; // what is wrong
    Mend mend = Mend::None;                 // what `Mended` does about it
    std::string message;                    // for people; may change
    std::string expected;                   // what may stand there, for people; empty where nothing may
    std::string nearest;  // the known name or key that is most like what was found; empty where none is likely
    PropertyTree found;   // null where something is missing
    PropertyTree becomes; // when it is read and written again; null where the read fails or loses it
};

/// The tree with all that can be mended. Findings whose place is not there are passed over.
/// @param tree a stored effect or a list of them
/// @param findings what `Check` said of the tree
OMBREL_INSPECTION_API PropertyTree Mended(PropertyTree tree, std::span<const Finding> findings);

} // namespace Ombrel::Inspection

#endif
