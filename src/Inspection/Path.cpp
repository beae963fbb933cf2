#include "Inspection/Path.h"

namespace Ombrel::Inspection
{

std::string Path::ToText() const
{
    std::string text;
    for (const PathStep& step : steps)
    {
        if (&step != steps.data())
        {
            text += '/';
        }
        if (const std::size_t* index = std::get_if<std::size_t>(&step))
        {
            text += std::to_string(*index);
            continue;
        }
        for (const char c : std::get<std::string>(step))
        {
            text += c == '~' ? "~0" : c == '/' ? "~1" : std::string(1, c);
        }
    }
    return text;
}

} // namespace Ombrel::Inspection
