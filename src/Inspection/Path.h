#ifndef OMBREL_INSPECTION_PATH_H
#define OMBREL_INSPECTION_PATH_H

#include "OmbrelExport.h"

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace Ombrel::Inspection
{

/// One step down a tree: the key of a map or the index of a list.
using PathStep = std::variant<std::string, std::size_t>;

/// The way from the root of a tree to a value in it; empty for the root. Paths may share their beginning: what is found in one
/// effect shares the path of the effect, which may be long where effects stand in effects. Equal paths lead through the same
/// steps, whatever they share.
class Path
{
public:
    Path() noexcept = default;
    Path(const Path&) = default;
    Path(Path&&) noexcept = default;
    Path& operator=(const Path&) = default;
    Path& operator=(Path&&) noexcept = default;
    OMBREL_INSPECTION_API ~Path();

    /// The steps in their order.
    explicit Path(std::vector<PathStep> steps) noexcept : m_ownSteps(std::move(steps)) {}

    /// The steps of `start`, if it is not null, and then `ownSteps`.
    Path(std::shared_ptr<const Path> start, std::vector<PathStep> ownSteps) noexcept
        : m_start(std::move(start)), m_ownSteps(std::move(ownSteps))
    {
    }

    /// All steps, those of the shared beginning first.
    OMBREL_INSPECTION_API std::vector<PathStep> Steps() const;

    /// The shared beginning, or null, and the steps after it.
    const std::shared_ptr<const Path>& Start() const noexcept { return m_start; }
    const std::vector<PathStep>& OwnSteps() const noexcept { return m_ownSteps; }

    /// Keys and indices joined with "/", with "~0" and "~1" for "~" and "/" within a key: "2/smartBlur/lumaRadius".
    OMBREL_INSPECTION_API std::string ToText() const;

    /// Whether both lead through the same steps.
    OMBREL_INSPECTION_API bool operator==(const Path& other) const;

private:
    mutable std::shared_ptr<const Path> m_start; // which the last that has it takes apart
    std::vector<PathStep> m_ownSteps;
};

} // namespace Ombrel::Inspection

#endif
