#ifndef OMBREL_PROPERTY_TREE_JSON_PROPERTY_TREE_JSON_H
#define OMBREL_PROPERTY_TREE_JSON_PROPERTY_TREE_JSON_H

#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

/// JSON text to tree and back, without loss.
///
/// null, bool, integer, float, string, list and map each have one form, and what is written reads back as the same state and
/// kind with the same bits. A number with neither a point nor an exponent is an integer and must fit a signed 64-bit one; any
/// other number is a float. Floats are written with the fewest digits that read back exactly, and always with a point or an
/// exponent: `1.0`, `-0.0`, `1e+22`. `-0` is the integer 0. A float too small for 64 bits reads as the nearest one, down to
/// 0.0 or -0.0.
///
/// Maps are written in the byte order of their keys and read in any order. Text is UTF-8 throughout. The text may hold any
/// value at its top; a leading byte order mark is skipped, and never written.
///
/// No operation recurses, so the nesting that can be read or written depends on memory and never on the stack. None depends
/// on the locale. All of them may run in any number of threads at once, as long as nobody changes the tree that is written
/// or calls `setlocale` while a text is read.
namespace Ombrel
{

struct JsonReadOptions
{
    /// How many maps and lists may be open at once: with 1, `[]` is read and `[[]]` is refused; with 0, only scalars and null.
    std::size_t maxDepth = 1000;

    /// Reads the strings "NaN", "Infinity" and "-Infinity" as floats and takes one backslash off a string that consists of
    /// backslashes and one of the three: the reverse of what the writer does under the option of the same name, which
    /// must be set alike on both sides. Keys are not concerned.
    bool nonFiniteAsText = false;
};

struct JsonWriteOptions
{
    /// Writes a float that is no finite number as the string "NaN", "Infinity" or "-Infinity", and gives a real string that
    /// consists of zero or more backslashes and one of the three one more backslash. Without the option such a float is
    /// refused and every string is written as it is. The sign and the bits of a NaN are lost.
    bool nonFiniteAsText = false;

    /// Spaces per level. 0 writes one line without any space. Otherwise each entry and each closing bracket has a line of its
    /// own and a space follows each colon. Empty containers are `{}` and `[]`; there is no line end behind the last line.
    unsigned indent = 0;
};

/// A text that cannot be read. `what()` is `line:column: at path: reason`, without the `at path: ` at the top, such as
/// `3:14: at 2/smartBlur: duplicate key "lumaRadius"`. In `what()` a control character or a byte that is not UTF-8 stands
/// escaped, so that it may be printed.
class OMBREL_API JsonError : public std::runtime_error
{
public:
    JsonError(std::size_t line, std::size_t column, const std::string& path, const std::string& reason);
    ~JsonError() override;

    /// The place of the token at fault, both from 1; within a malformed token, of the first byte that does not fit. Behind
    /// the end of a truncated text. The column counts bytes, a byte order mark excluded; a line ends with a line feed.
    std::size_t line() const noexcept { return m_line; }
    std::size_t column() const noexcept { return m_column; }

    /// The keys and list indices, from 0, that lead to the value at fault, joined by "/"; empty at the top. A "~" within a key
    /// stands as "~0" and a "/" as "~1", as in a JSON pointer. A fault of a key or between two values has the path of the map
    /// or list around it.
    const std::string& path() const noexcept { return *m_path; }

private:
    std::size_t m_line;
    std::size_t m_column;
    std::shared_ptr<const std::string> m_path; // shared, because copying an exception must not throw
};

/// A tree that has no JSON form. `what()` is `at path: reason`, as above.
class OMBREL_API JsonWriteError : public std::runtime_error
{
public:
    JsonWriteError(const std::string& path, const std::string& reason);
    ~JsonWriteError() override;

    /// The way to the value or to the key at fault, as `JsonError::path` has it.
    const std::string& path() const noexcept { return *m_path; }

private:
    std::shared_ptr<const std::string> m_path;
};

/// The tree that `text` describes. The text is only looked at during the call.
/// @throws JsonError on bad syntax, invalid UTF-8, a key that a map holds already, a number that does not fit, nesting over
///         `options.maxDepth`, an empty or truncated text, or anything but white space behind the value
OMBREL_API PropertyTree ReadJson(std::string_view text, const JsonReadOptions& options = {});

/// The text of `tree`.
/// @throws JsonWriteError on a string or key that is not valid UTF-8, and on a float that is no finite number unless
///         `options.nonFiniteAsText` is set
OMBREL_API std::string WriteJson(const PropertyTree& tree, const JsonWriteOptions& options = {});

/// Adds the text of `tree` at the end of `text`, which stays as it was if anything is thrown.
/// @throws JsonWriteError as `WriteJson`
OMBREL_API void AppendJson(std::string& text, const PropertyTree& tree, const JsonWriteOptions& options = {});

} // namespace Ombrel

#endif
