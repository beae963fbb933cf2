#include "FormsComparison.h"
#include "Mutation.h"

#include <charconv>
#include <cstdlib>
#include <iostream>
#include <string_view>

// compare-forms COUNT SEED: the forms of COUNT random trees of all classes, which are the same for the same SEED.

namespace
{

unsigned NumberOf(std::string_view text)
{
    unsigned number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
    {
        std::cerr << "usage: compare-forms COUNT SEED\n";
        return EXIT_FAILURE;
    }
    Fuzz::Mutation mutation(NumberOf(argv[2]));
    for (unsigned left = NumberOf(argv[1]); left != 0;)
    {
        Ombrel::PropertyTree tree;
        for (std::size_t changes = 1 + mutation.Below(12); changes != 0 && left != 0; --changes, --left)
        {
            mutation.ChangeInput(tree);
            Fuzz::CompareForms(tree);
        }
    }
}
