#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_TEXT_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_TEXT_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Shared by the reader, the writer and the exceptions. Not for callers.
namespace Ombrel::JsonText
{

/// The path from the top of a tree to one of its values, as text.
class Path
{
public:
    void Add(std::string_view key);
    void Add(std::size_t index);

    const std::string& Text() const noexcept { return m_text; }

private:
    void AddSeparator();

    std::string m_text;
    bool m_isTop = true; // an empty text does not tell, since a key may be empty
};

/// The length of the well-formed UTF-8 sequence at the start of `text`, or 0. `text` must not be empty.
std::size_t Utf8Length(std::string_view text) noexcept;

/// Adds the escape of the code point `character`, which is below 256: a quote, a backslash or a control character.
void AppendEscape(std::string& out, char character);

/// Adds `text` as a JSON string. False if it is not valid UTF-8; part of it may then have been added.
bool AppendQuoted(std::string& out, std::string_view text);

/// The name of a float that is NaN or infinite.
std::string_view NonFiniteText(double value) noexcept;

/// The float that `text` is the name of, if it is one.
std::optional<double> NonFiniteValue(std::string_view text) noexcept;

/// True if `text` is such a name behind zero or more backslashes.
bool NeedsGuard(std::string_view text) noexcept;

} // namespace Ombrel::JsonText

#endif
