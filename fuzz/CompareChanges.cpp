#include "ChangesComparison.h"
#include "RandomChanges.h"
#include "RandomTrees.h"

// compare-changes COUNT SEED: what changes random trees into others, and merges of two others.
int main(int argc, char** argv)
{
    using Ombrel::PropertyTree;
    Fuzz::RandomPairs pairs;
    return Fuzz::CompareRandomTrees(argc, argv,
                                    [&pairs](const PropertyTree& tree, Fuzz::Mutation& mutation)
                                    {
                                        pairs.Compare(tree, mutation,
                                                      [&mutation](const PropertyTree& before, const PropertyTree& after)
                                                      {
                                                          Fuzz::CompareChanges(before, after);
                                                          PropertyTree third = before;
                                                          Fuzz::ChangeSome(third, mutation);
                                                          if (mutation.IsOneIn(2))
                                                          {
                                                              Fuzz::ChangeLists(third, mutation);
                                                          }
                                                          Fuzz::CompareMerge(before, after, third);
                                                      });
                                    });
}
