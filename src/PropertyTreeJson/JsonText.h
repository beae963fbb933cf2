#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_TEXT_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_TEXT_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What the reader, the writer and the exceptions share. Not for callers.
namespace Ombrel::JsonText
{

/// The way from the top of a tree to one of its values, as text.
class Path
{
public:
    void Add(std::string_view key);
    void Add(std::size_t index);

    const std::string& Text() const noexcept { return m_text; }

private:
    void AddSeparator();

    std::string m_text;
    bool m_isTop = true; // the text alone cannot tell, since a key may be empty
};

/// The length of the well-formed UTF-8 sequence at the start of `text`, or 0. `text` must not be empty.
std::size_t Utf8Length(std::string_view text) noexcept;

/// Adds the escape of `character`, a quote, a backslash or a control character.
void AppendEscape(std::string& out, char character);

/// Adds `text` as a JSON string; false if it is not valid UTF-8: then part of it may have been added.
bool AppendQuoted(std::string& out, std::string_view text);

/// The text that stands for a float that is no finite number.
std::string_view NonFiniteText(double value) noexcept;

/// The float that `text` stands for, if it does.
std::optional<double> NonFiniteValue(std::string_view text) noexcept;

/// True if `text` is backslashes, or none, and then a text that stands for a float.
bool NeedsGuard(std::string_view text) noexcept;

} // namespace Ombrel::JsonText

#endif
