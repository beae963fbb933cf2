#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_TEXT_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_TEXT_H

#include <optional>
#include <string>
#include <string_view>

/// Shared by the reader and the writer. Not for callers.
namespace Ombrel::JsonText
{

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
