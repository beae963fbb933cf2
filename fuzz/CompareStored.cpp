#include "RandomChanges.h"
#include "RandomTrees.h"
#include "StoredComparison.h"

// compare-stored COUNT SEED: COUNT random trees of all classes, which are the same for the same SEED, loaded, changed and
// saved.
int main(int argc, char** argv)
{
    Fuzz::RandomPairs pairs;
    return Fuzz::CompareRandomTrees(argc, argv,
                                    [&pairs](const Ombrel::PropertyTree& tree, Fuzz::Mutation& mutation)
                                    { pairs.Compare(tree, mutation, &Fuzz::CompareStored); });
}
