#include "Inspection/CheckContext.h"

#include <vector>

namespace Ombrel::Inspection
{

std::shared_ptr<const Path> CheckContext::PathOfEffect(const Place& effect)
{
    std::shared_ptr<const Path> path;
    std::vector<const Place*> without; // from the inner to the outer ones
    for (const Place* place = &effect; place->parent; place = &place->parent->Effect())
    {
        if (const auto found = paths.find(place); found != paths.end())
        {
            path = found->second;
            break;
        }
        without.push_back(place);
    }
    for (auto place = without.rbegin(); place != without.rend(); ++place)
    {
        path = std::make_shared<const Path>(path, (*place)->StepsFrom((*place)->parent->Effect()));
        paths.emplace(*place, path);
    }
    return path;
}

} // namespace Ombrel::Inspection
