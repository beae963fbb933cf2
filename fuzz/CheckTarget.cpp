#include "CheckComparison.h"
#include "Fuzz.h"
#include "StoredEffects.h"

// Trees of every class: what a check says of them is what reading and writing them do.

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    for (const Ombrel::PropertyTree& tree : Fuzz::ParseInput(data, size))
    {
        Fuzz::CompareCheck(tree);
    }
    return 0;
}
