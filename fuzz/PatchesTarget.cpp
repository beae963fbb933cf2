#include "Fuzz.h"
#include "Inspection/JsonPatch.h"
#include "StoredEffects.h"

#include <optional>
#include <string>

// A list of a tree and a JSON Patch, which need not fit: what can be done is done and undone by nothing else, and what cannot
// leaves the tree as it was.

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace Ombrel;
    using namespace Ombrel::Inspection;

    const std::vector<PropertyTree> trees = Fuzz::ParseInput(data, size);
    for (std::size_t index = 0; index + 1 < trees.size(); ++index)
    {
        PropertyTree tree = trees[index];
        std::optional<std::size_t> failed;
        try
        {
            ApplyJsonPatch(trees[index + 1], tree, {.maxCopied = 10000});
        }
        catch (const JsonPatchError& error)
        {
            failed = error.Operation();
            Fuzz::RequireSame(trees[index], tree, error.what());
        }
        // One operation after the other, up to the one that fails, does the same.
        PropertyTree stepwise = trees[index];
        const std::size_t count = failed ? *failed : trees[index + 1].isList() ? trees[index + 1].getList().size() : 0;
        for (std::size_t operation = 0; operation != count; ++operation)
        {
            PropertyTree one;
            one.append(trees[index + 1].getList()[operation]);
            ApplyJsonPatch(one, stepwise);
        }
        if (!failed)
        {
            Fuzz::RequireSame(tree, stepwise, "the operations one by one");
        }
    }
    return 0;
}
