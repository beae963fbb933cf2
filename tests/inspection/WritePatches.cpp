#include "Inspection/Changes.h"
#include "Inspection/JsonPatch.h"
#include "Mutation.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "RandomChanges.h"
#include "RandomTrees.h"
#include "StoredEffects.h"

#include <cstdlib>
#include <iostream>
#include <string>

// write-patches COUNT SEED: a line of JSON for each of so many pairs of random trees, with the patch from the one to the other
// and what this library makes of it; then a line for each of as many random patches, with what it makes of them or null.
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

// No numbers that JSON does not have, and that other programs read as another value.
bool IsForAll(const PropertyTree& tree)
{
    return !Fuzz::HasNonFinite(tree);
}

std::string AnyPointer(const PropertyTree& tree, Fuzz::Mutation& mutation)
{
    std::string pointer;
    const PropertyTree* value = &tree;
    while (!mutation.IsOneIn(3))
    {
        if (value->isMap() && !value->getMap().empty() && !mutation.IsOneIn(12))
        {
            auto entry = value->getMap().begin();
            for (std::size_t count = mutation.Below(value->getMap().size()); count != 0; --count)
            {
                ++entry;
            }
            pointer += "/" + entry->first;
            value = &entry->second;
        }
        else if (value->isList() && !value->getList().empty() && !mutation.IsOneIn(12))
        {
            const std::size_t index = mutation.Below(value->getList().size());
            pointer += "/" + std::to_string(index);
            value = &value->getList()[index];
        }
        else if (value->isScalar() && value->getScalar().kind() == PropertyTreeScalar::Kind::String)
        {
            return pointer; // the other program goes on with the characters
        }
        else
        {
            constexpr const char* STEPS[] = {"0", "1", "00", "01", "x", "a~1b", "c~0d", ""};
            return pointer + "/" + (value->isList() && mutation.IsOneIn(2) ? "-" : STEPS[mutation.Below(std::size(STEPS))]);
        }
    }
    return pointer;
}

PropertyTree AnyPatch(const PropertyTree& tree, Fuzz::Mutation& mutation)
{
    PropertyTree patch;
    patch.makeList();
    PropertyTree now = tree;
    for (std::size_t count = 1 + mutation.Below(4); count != 0; --count)
    {
        constexpr const char* NAMES[] = {"add", "remove", "replace", "move", "copy", "test"};
        PropertyTree operation;
        operation["op"] = NAMES[mutation.Below(std::size(NAMES))];
        operation["path"] = AnyPointer(now, mutation);
        operation["from"] = AnyPointer(now, mutation);
        operation["value"] = mutation.IsOneIn(2) ? PropertyTree(static_cast<int>(5 + mutation.Below(3))) : now;
        // Of what is done with the whole the other program cannot do all.
        if (operation["from"].getScalar().toString().empty())
        {
            operation["from"] = "/name";
        }
        if (operation["path"].getScalar().toString().empty())
        {
            operation["op"] = mutation.IsOneIn(2) ? "replace" : "test";
            operation["value"] = now;
        }
        const std::string& from = operation["from"].getScalar().toString();
        if (operation["op"] == PropertyTree("move") && operation["path"].getScalar().toString().starts_with(from + "/"))
        {
            operation["op"] = "copy"; // the other program moves elements of lists into themselves
        }
        patch.append(operation);
        PropertyTree one;
        one.append(operation);
        try
        {
            ApplyJsonPatch(one, now);
        }
        catch (const JsonPatchError&)
        {
        }
    }
    return patch;
}

void WriteForeign(const PropertyTree& tree, Fuzz::Mutation& mutation)
{
    PropertyTree line;
    line["before"] = tree;
    line["patch"] = AnyPatch(tree, mutation);
    PropertyTree result = tree;
    try
    {
        ApplyJsonPatch(line["patch"], result);
        line["result"] = result;
        line["isRefused"] = false;
    }
    catch (const JsonPatchError& error)
    {
        line["result"] = error.what();
        line["isRefused"] = true;
    }
    std::cout << WriteJson(line) << '\n';
}

void WritePair(const PropertyTree& before, const PropertyTree& after)
{
    const ChangeList changes = Diff(before, after);
    PropertyTree line;
    line["before"] = before;
    line["patch"] = ToJsonPatch(changes);
    line["inverse"] = ToJsonPatch(Inverse(changes));
    PropertyTree result = before;
    Apply(changes, result);
    line["result"] = result;
    std::cout << WriteJson(line) << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    Fuzz::RandomPairs pairs;
    return Fuzz::CompareRandomTrees(argc, argv,
                                    [&pairs](const PropertyTree& tree, Fuzz::Mutation& mutation)
                                    {
                                        pairs.Compare(tree, mutation,
                                                      [](const PropertyTree& before, const PropertyTree& after)
                                                      {
                                                          if (IsForAll(before) && IsForAll(after))
                                                          {
                                                              WritePair(before, after);
                                                          }
                                                      });
                                        if (IsForAll(tree))
                                        {
                                            WriteForeign(tree, mutation);
                                        }
                                    });
}
