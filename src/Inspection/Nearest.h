#ifndef OMBREL_INSPECTION_NEAREST_H
#define OMBREL_INSPECTION_NEAREST_H

#include "OmbrelExport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Ombrel::Inspection
{

/// Finds the name that is most like a text: the one with the fewest characters to add, drop, change or swap, if those are few.
/// Upper and lower case count as half a change.
class OMBREL_INSPECTION_API NearestName
{
public:
    /// `text` must outlive the object.
    explicit NearestName(std::string_view text);

    /// The next name that comes into question.
    /// @throws std::bad_alloc
    void Try(std::string_view name);

    /// Empty if none is likely.
    const std::string& Get() const noexcept { return m_nearest; }

private:
    std::size_t DistanceTo(std::string_view name);

    std::string_view m_text;
    std::size_t m_distance; // of the nearest, in halves
    std::string m_nearest;
    std::vector<std::size_t> m_rows;
};

} // namespace Ombrel::Inspection

#endif
