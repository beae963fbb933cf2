#include "CheckComparison.h"
#include "RandomTrees.h"

// compare-check COUNT SEED: what a check says of random trees, and what reading and writing them do.
int main(int argc, char** argv)
{
    return Fuzz::CompareRandomTrees(argc, argv,
                                    [](const Ombrel::PropertyTree& tree, Fuzz::Mutation&) { Fuzz::CompareCheck(tree); });
}
