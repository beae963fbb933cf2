#include "FormsComparison.h"
#include "Fuzz.h"
#include "StoredEffects.h"

#include <utility>
#include <vector>

// Trees of every class, one by one and as a list: their forms are read as they are.

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<Ombrel::PropertyTree> trees = Fuzz::ParseInput(data, size);
    for (const Ombrel::PropertyTree& tree : trees)
    {
        Fuzz::CompareForms(tree);
    }
    Ombrel::PropertyTree list;
    list.makeList() = std::move(trees);
    Fuzz::CompareForms(list);
    return 0;
}
