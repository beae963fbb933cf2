#include "FormsComparison.h"
#include "RandomTrees.h"

// compare-forms COUNT SEED: the forms of random trees.
int main(int argc, char** argv)
{
    return Fuzz::CompareRandomTrees(argc, argv,
                                    [](const Ombrel::PropertyTree& tree, Fuzz::Mutation&) { Fuzz::CompareForms(tree); });
}
