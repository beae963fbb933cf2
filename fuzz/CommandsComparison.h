#ifndef OMBREL_FUZZ_COMMANDS_COMPARISON_H
#define OMBREL_FUZZ_COMMANDS_COMPARISON_H

#include "Mutation.h"
#include "PropertyTree/PropertyTree.h"

namespace Fuzz
{

/// Runs the commands of the tool on a file with this tree; those on one value with a place and a value that `mutation` picks.
/// Ends the program unless each either refuses with a `ToolError`, or leaves a file that can be read, in which one place alone
/// has changed, and to what was asked for, or says what else has.
void CompareCommands(const Ombrel::PropertyTree& tree, Mutation& mutation);

} // namespace Fuzz

#endif
