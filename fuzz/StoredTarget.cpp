#include "Fuzz.h"
#include "StoredComparison.h"
#include "StoredEffects.h"

// Effects of every class, some of which cannot be read: what is loaded is saved as it was, and each change is saved alone. Of a
// list each effect is changed into the next.

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<Ombrel::PropertyTree> trees = Fuzz::ParseInput(data, size);
    for (std::size_t index = 0; index < trees.size(); ++index)
    {
        Fuzz::CompareStored(trees[index], trees[(index + 1) % trees.size()]);
    }
    return 0;
}
