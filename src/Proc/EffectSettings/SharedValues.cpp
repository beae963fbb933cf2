#include "Proc/EffectSettings/SharedValues.h"

#include "Proc/EarlyInit.h"
#include "Proc/EffectSettings/WrappingArithmetic.h"

#include <algorithm>

namespace Ombrel::PhotoCore
{

ROI& ROI::Unite(const ROI& other)
{
    const std::int32_t right = std::max(WrappingSum(left, width), WrappingSum(other.left, other.width));
    const std::int32_t bottom = std::max(WrappingSum(top, height), WrappingSum(other.top, other.height));
    left = std::min(left, other.left);
    top = std::min(top, other.top);
    width = WrappingDifference(right, left);
    height = WrappingDifference(bottom, top);
    return *this;
}

OMBREL_EARLY_INIT const std::vector<PixFmt> Const::CorePixelFormats{PixFmt::RGB24, PixFmt::BGRA, PixFmt::BGR0};

std::uint32_t MaxIndex(std::uint32_t a, std::uint32_t b)
{
    if (a == Const::NO_VALUE)
    {
        return b;
    }
    return b != Const::NO_VALUE && a < b ? b : a;
}

} // namespace Ombrel::PhotoCore
