#ifndef OMBREL_FUZZ_RANDOM_TREES_H
#define OMBREL_FUZZ_RANDOM_TREES_H

#include "Mutation.h"

#include <charconv>
#include <cstdlib>
#include <iostream>
#include <string_view>

// What the programs share that compare two ways over COUNT random trees of all classes, the same trees for the same SEED.
namespace Fuzz
{

inline unsigned NumberOf(std::string_view text)
{
    unsigned number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// Calls `compare` with each tree and what may change it further. The exit code of the program.
template <class Compare> int CompareRandomTrees(int argc, char** argv, Compare compare)
{
    if (argc != 3)
    {
        std::cerr << "usage: " << argv[0] << " COUNT SEED\n";
        return EXIT_FAILURE;
    }
    Mutation mutation(NumberOf(argv[2]));
    for (unsigned left = NumberOf(argv[1]); left != 0;)
    {
        Ombrel::PropertyTree tree;
        for (std::size_t changes = 1 + mutation.Below(12); changes != 0 && left != 0; --changes, --left)
        {
            mutation.ChangeInput(tree);
            compare(tree, mutation);
        }
    }
    return EXIT_SUCCESS;
}

} // namespace Fuzz

#endif
