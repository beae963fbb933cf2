#include "CommandsComparison.h"
#include "RandomTrees.h"

// compare-commands COUNT SEED: the commands of the tool on random files.
int main(int argc, char** argv)
{
    return Fuzz::CompareRandomTrees(argc, argv, &Fuzz::CompareCommands);
}
