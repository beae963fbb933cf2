#include "ChangesComparison.h"
#include "Fuzz.h"
#include "StoredEffects.h"

// Of the effects of an input each is changed into the next, and all of them into all in another order.

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using Ombrel::PropertyTree;
    const std::vector<PropertyTree> trees = Fuzz::ParseInput(data, size);
    for (std::size_t index = 0; index + 1 < trees.size(); ++index)
    {
        Fuzz::CompareChanges(trees[index], trees[index + 1]);
    }
    PropertyTree all;
    PropertyTree reversed;
    all.makeList().assign(trees.begin(), trees.end());
    reversed.makeList().assign(trees.rbegin(), trees.rend());
    Fuzz::CompareChanges(all, reversed);
    if (trees.size() > 2)
    {
        Fuzz::CompareMerge(trees[0], trees[1], trees[2]);
    }
    return 0;
}
