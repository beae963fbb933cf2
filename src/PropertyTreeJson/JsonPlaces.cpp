#include "PropertyTreeJson/JsonPlaces.h"

#include "PropertyTreeJson/JsonPlaceTable.h"
#include "PropertyTreeJson/JsonScanner.h"
#include "PropertyTreeJson/MessageText.h"

#include <algorithm>
#include <numeric>
#include <tuple>
#include <utility>

namespace Ombrel
{
void JsonPlaceTable::AddValue(std::size_t offset)
{
    Value& value = m_values.emplace_back(Value{.parent = 0, .index = 0, .key = {}, .offset = offset});
    if (m_open.empty())
    {
        return;
    }
    Container& container = m_open.back();
    value.parent = container.value;
    if (m_values[container.value].isList)
    {
        value.index = container.count++;
    }
    else
    {
        value.key = std::move(m_key);
    }
}

void JsonPlaceTable::Open(bool isMap)
{
    m_values.back().isList = !isMap;
    m_open.push_back({.value = m_values.size() - 1});
}

void JsonPlaceTable::Finish(std::string_view text)
{
    m_lines.push_back(text.starts_with(JsonScanner::BYTE_ORDER_MARK) ? JsonScanner::BYTE_ORDER_MARK.size() : 0);
    for (std::size_t feed = text.find('\n'); feed != std::string_view::npos; feed = text.find('\n', feed + 1))
    {
        m_lines.push_back(feed + 1);
    }
    m_sorted.resize(m_values.size() - 1); // all but the top value, which is the first
    std::iota(m_sorted.begin(), m_sorted.end(), std::size_t{1});
    std::ranges::sort(m_sorted,
                      [this](std::size_t a, std::size_t b)
                      {
                          const Value& one = m_values[a];
                          const Value& other = m_values[b];
                          return std::tie(one.parent, one.index, one.key) < std::tie(other.parent, other.index, other.key);
                      });
}

std::optional<std::size_t> JsonPlaceTable::Below(std::size_t parent, std::string_view step) const
{
    const bool isOfList = m_values[parent].isList;
    const std::optional<std::size_t> index = isOfList ? MessageText::IndexOf(step) : std::size_t{0};
    if (!index)
    {
        return std::nullopt;
    }
    const std::string_view key = isOfList ? std::string_view() : step;
    const auto wayTo = [this](std::size_t value)
    { return std::tuple(m_values[value].parent, m_values[value].index, std::string_view(m_values[value].key)); };
    const auto found = std::ranges::lower_bound(m_sorted, std::tuple(parent, *index, key), {}, wayTo);
    return found != m_sorted.end() && wayTo(*found) == std::tuple(parent, *index, key) ? std::optional(*found) : std::nullopt;
}

JsonPlace JsonPlaceTable::PlaceOf(std::size_t value) const
{
    const std::size_t offset = m_values[value].offset;
    const auto next = std::ranges::upper_bound(m_lines, offset);
    return {.line = static_cast<std::size_t>(next - m_lines.begin()), .column = offset - *std::prev(next) + 1};
}

JsonPlaces::JsonPlaces(std::string_view text, const JsonReadOptions& options)
{
    auto table = std::make_unique<JsonPlaceTable>();
    ReadJsonWithPlaces(text, options, table.get());
    table->Finish(text);
    m_table = std::move(table);
}

JsonPlaces::JsonPlaces(JsonPlaces&& other) noexcept = default;
JsonPlaces& JsonPlaces::operator=(JsonPlaces&& other) noexcept = default;
JsonPlaces::~JsonPlaces() = default;

std::optional<JsonPlaces::Value> JsonPlaces::Below(Value value, std::string_view step) const
{
    const std::optional<std::size_t> below = m_table->Below(static_cast<std::size_t>(value), step);
    return below ? std::optional(Value{*below}) : std::nullopt;
}

JsonPlace JsonPlaces::PlaceOf(Value value) const
{
    return m_table->PlaceOf(static_cast<std::size_t>(value));
}

std::optional<JsonPlace> JsonPlaces::Find(std::span<const std::string> steps) const
{
    std::optional<Value> value = Value::Top;
    for (auto step = steps.begin(); value && step != steps.end(); ++step)
    {
        value = Below(*value, *step);
    }
    return value ? std::optional(PlaceOf(*value)) : std::nullopt;
}

} // namespace Ombrel
