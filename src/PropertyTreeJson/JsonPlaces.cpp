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

std::optional<JsonPlace> JsonPlaceTable::Find(std::span<const std::string> steps) const
{
    const Value* value = &m_values.front();
    for (const std::string& step : steps)
    {
        value = ChildOf(*value, step);
        if (!value)
        {
            return std::nullopt;
        }
    }
    return PlaceOf(value->offset);
}

const JsonPlaceTable::Value* JsonPlaceTable::ChildOf(const Value& parent, const std::string& step) const
{
    const std::optional<std::size_t> index = parent.isList ? MessageText::IndexOf(step) : std::size_t{0};
    if (!index)
    {
        return nullptr;
    }
    const auto number = static_cast<std::size_t>(&parent - m_values.data());
    const std::string_view key = parent.isList ? std::string_view() : step;
    const auto found = std::ranges::lower_bound(m_sorted, std::tuple(number, *index, key), {},
                                                [this](std::size_t place)
                                                {
                                                    const Value& value = m_values[place];
                                                    return std::tuple(value.parent, value.index, std::string_view(value.key));
                                                });
    if (found == m_sorted.end())
    {
        return nullptr;
    }
    const Value& value = m_values[*found];
    return value.parent == number && value.index == *index && value.key == key ? &value : nullptr;
}

JsonPlace JsonPlaceTable::PlaceOf(std::size_t offset) const
{
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

std::optional<JsonPlace> JsonPlaces::Find(std::span<const std::string> steps) const
{
    return m_table->Find(steps);
}

} // namespace Ombrel
