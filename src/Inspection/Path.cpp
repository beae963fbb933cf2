#include "Inspection/Path.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

// A path and those that it begins with, the longest first.
template <class Visit> void ForEachPart(const Path& path, const Visit& visit)
{
    for (const Path* part = &path; part; part = part->Start().get())
    {
        visit(part->OwnSteps());
    }
}

} // namespace

// One after the other: beginnings of beginnings may be as many as effects stand in each other.
Path::~Path()
{
    while (m_start && m_start.use_count() == 1)
    {
        std::atomic_thread_fence(std::memory_order_acquire); // another thread may have had it until now
        m_start = std::exchange(m_start->m_start, nullptr);
    }
}

std::vector<PathStep> Path::Steps() const
{
    if (!m_start)
    {
        return m_ownSteps;
    }
    std::size_t count = 0;
    ForEachPart(*this, [&count](const std::vector<PathStep>& steps) { count += steps.size(); });
    std::vector<PathStep> all(count);
    auto end = all.end();
    ForEachPart(*this,
                [&end](const std::vector<PathStep>& steps) { end = std::copy_backward(steps.begin(), steps.end(), end); });
    return all;
}

std::string Path::ToText() const
{
    std::vector<const std::vector<PathStep>*> parts;
    ForEachPart(*this, [&parts](const std::vector<PathStep>& steps) { parts.push_back(&steps); });
    std::string text;
    bool isFirst = true;
    for (auto part = parts.rbegin(); part != parts.rend(); ++part)
    {
        for (const PathStep& step : **part)
        {
            text += std::exchange(isFirst, false) ? "" : "/";
            if (const std::size_t* index = std::get_if<std::size_t>(&step))
            {
                text += std::to_string(*index);
                continue;
            }
            const std::string& key = std::get<std::string>(step);
            if (key.find_first_of("~/") == std::string::npos)
            {
                text += key;
                continue;
            }
            for (const char c : key)
            {
                text += c == '~' ? "~0" : c == '/' ? "~1" : std::string(1, c);
            }
        }
    }
    return text;
}

bool Path::operator==(const Path& other) const
{
    return m_start == other.m_start ? m_ownSteps == other.m_ownSteps : Steps() == other.Steps();
}

} // namespace Ombrel::Inspection
