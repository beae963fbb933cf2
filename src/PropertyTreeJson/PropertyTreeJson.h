#ifndef OMBREL_PROPERTY_TREE_JSON_PROPERTY_TREE_JSON_H
#define OMBREL_PROPERTY_TREE_JSON_PROPERTY_TREE_JSON_H

#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

/// JSON text to tree and back, without loss.
///
/// null, bool, integer, float, string, list and map each have one form. A value that is written reads back with the same state,
/// kind and bits. A number without a point and an exponent is an integer and must fit a signed 64-bit one. Any other number is
/// a float. Floats are written with the fewest digits that read back exactly, and always with a point or an exponent: `1.0`,
/// `-0.0`, `1e+22`. `-0` is the integer 0. A float too small for 64 bits reads as the nearest one, down to 0.0 or -0.0.
///
/// Maps are written in the byte order of their keys and read in any order. All text is UTF-8. The top value may be of any kind.
/// A leading byte order mark is skipped on reading and never written.
///
/// No operation recurses: nesting takes memory but no stack. No result depends on the locale. Any number of threads may read
/// and write at once, as long as none changes the tree that is written, or calls `setlocale` during a read.
namespace Ombrel
{

/// What a reader takes beside plain JSON, and how much.
struct JsonReadOptions
{
    /// How many maps and lists may be open at once: with 1, `[]` is read and `[[]]` is refused; with 0, only scalars and null
    /// are read. The default is enough for whatever `EffectSettings::SerializePtr` writes of this library's effects: five
    /// levels for each of 512 tiles inside each other, the list around them, and the innermost effect's own values.
    std::size_t maxDepth = 4096;

    /// Reads the strings "NaN", "Infinity" and "-Infinity" as floats, and takes one backslash off a string that consists of
    /// backslashes and one of the three. Reverses the writer's option of the same name, and must be set the same on both sides.
    /// Keys are read as they are.
    bool nonFiniteAsText = false;

    /// How many values the text may contain: each null, bool, number, string, list and map is one, a key is none.
    std::size_t maxValues = std::numeric_limits<std::size_t>::max();

    /// How many bytes the text may have, a byte order mark included. Checked before anything is read or allocated for the tree.
    std::size_t maxBytes = std::numeric_limits<std::size_t>::max();
};

/// How a text is laid out, and what is written beside plain JSON.
struct JsonWriteOptions
{
    /// Writes a NaN or an infinity as the string "NaN", "Infinity" or "-Infinity". A string of the tree that consists of zero
    /// or more backslashes and one of the three gets one more backslash. Without the option such a float is refused and every
    /// string is written as it is. The sign and the bits of a NaN are lost.
    bool nonFiniteAsText = false;

    /// Spaces per level. 0 writes one line without any space. Otherwise each entry and each closing bracket has a line of its
    /// own, and a space follows each colon. Empty containers are `{}` and `[]`. The last line has no line end. Levels deeper
    /// than 64 are indented like the 64th: a line begins with at most 64 times `indent` spaces, however deep the tree is.
    unsigned indent = 0;
};

/// A text that cannot be read. `what()` is `line:column: at path: reason`, without `at path: ` if the path is empty, such as
/// `3:14: at 2/smartBlur: duplicate key "lumaRadius"`. It may be printed on a terminal or into a log, whatever the input: in it
/// control characters (U+0000 to U+001F, U+007F to U+009F) and bytes that are not UTF-8 are escaped. `path()` is not escaped.
class OMBREL_JSON_API JsonError : public std::runtime_error
{
public:
    /// `reason` is the end of `what()`; members give the rest.
    JsonError(std::size_t line, std::size_t column, const std::string& path, const std::string& reason);
    ~JsonError() override;

    /// The place of the invalid token, both from 1. In a malformed token, of the first byte that does not fit; in a truncated
    /// text, behind its end; in a text of too many bytes, of the first one beyond the limit. The column counts bytes, without a
    /// byte order mark. A line ends with a line feed.
    std::size_t line() const noexcept { return m_line; }
    std::size_t column() const noexcept { return m_column; }

    /// The keys and list indices (from 0) that lead to the invalid value, joined by "/"; empty at the top. In a key "~" is
    /// written as "~0" and "/" as "~1", as in a JSON pointer. For an invalid key, or a fault between two values, it is the path
    /// of the map or list around it.
    const std::string& path() const noexcept { return *m_path; }

private:
    std::size_t m_line;
    std::size_t m_column;
    std::shared_ptr<const std::string> m_path; // shared, because copying an exception must not throw
};

/// A tree that has no JSON form. `what()` is `at path: reason`, escaped in the same way.
class OMBREL_JSON_API JsonWriteError : public std::runtime_error
{
public:
    /// `reason` is the end of `what()`; members give the rest.
    JsonWriteError(const std::string& path, const std::string& reason);
    ~JsonWriteError() override;

    /// The path to the value or key at fault, in the form of `JsonError::path`.
    const std::string& path() const noexcept { return *m_path; }

private:
    std::shared_ptr<const std::string> m_path;
};

/// The tree that `text` describes. No reference to `text` is kept.
/// @throws JsonError on bad syntax, invalid UTF-8, a key that occurs twice in a map, a number that does not fit, more depth,
///         values or bytes than `options` allow, an empty or truncated text, or anything but white space behind the value
OMBREL_JSON_API PropertyTree ReadJson(std::string_view text, const JsonReadOptions& options = {});

/// The text of `tree`.
/// @throws JsonWriteError on a string or key that is not valid UTF-8, and on a NaN or an infinity unless
///         `options.nonFiniteAsText` is set
OMBREL_JSON_API std::string WriteJson(const PropertyTree& tree, const JsonWriteOptions& options = {});

/// Adds the text of `tree` at the end of `text`, which stays as it was if anything is thrown.
/// @throws JsonWriteError as `WriteJson`
OMBREL_JSON_API void AppendJson(std::string& text, const PropertyTree& tree, const JsonWriteOptions& options = {});

} // namespace Ombrel

#endif
