#include "ChangesComparison.h"
#include "RandomChanges.h"
#include "RandomTrees.h"

// compare-changes COUNT SEED: what changes random trees into others.
int main(int argc, char** argv)
{
    Fuzz::RandomPairs pairs;
    return Fuzz::CompareRandomTrees(argc, argv,
                                    [&pairs](const Ombrel::PropertyTree& tree, Fuzz::Mutation& mutation)
                                    { pairs.Compare(tree, mutation, &Fuzz::CompareChanges); });
}
