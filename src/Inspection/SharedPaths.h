#ifndef OMBREL_INSPECTION_SHARED_PATHS_H
#define OMBREL_INSPECTION_SHARED_PATHS_H

#include "Inspection/Path.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace Ombrel::Inspection
{

/// What paths lead to that others begin with. Each is followed once, however many begin with it, and kept as long as this.
template <class Target> class SharedPaths
{
public:
    /// @param path null for the root
    /// @param follow gives what the own steps of a path lead to, from what its start leads to
    template <class Follow> Target Find(const std::shared_ptr<const Path>& path, Target root, const Follow& follow)
    {
        Target target = root;
        std::vector<const std::shared_ptr<const Path>*> pending;
        for (const auto* part = &path; *part; part = &(*part)->Start())
        {
            if (const auto known = m_targets.find(*part); known != m_targets.end())
            {
                target = known->second;
                break;
            }
            pending.push_back(part);
        }
        for (auto part = pending.rbegin(); part != pending.rend(); ++part)
        {
            target = follow(target, ***part);
            m_targets.emplace(**part, target);
        }
        return target;
    }

private:
    std::unordered_map<std::shared_ptr<const Path>, Target> m_targets;
};

} // namespace Ombrel::Inspection

#endif
