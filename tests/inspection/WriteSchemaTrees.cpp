#include "Mutation.h"
#include "StoredEffects.h"

#include "Inspection/Check.h"
#include "Inspection/JsonSchema.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <charconv>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

// write-schema-trees FOLDER COUNT SEED: the schemas, and COUNT random trees of all classes with what a check says of each, for
// a validator that is none of ours. The trees are the same for the same SEED.
//
// "schemas.jsonl" has a line {"name": ..., "schema": ...} for each schema: "open", "closed" and "texts" of all effects, and one
// for each class id. "trees.jsonl" has a line {"schema": ..., "findings": [...], "tree": ...} for each tree, where a finding is
// a severity and a code.
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

constexpr JsonWriteOptions AS_TEXTS{.nonFiniteAsText = true};

void WriteSchema(std::ofstream& file, const std::string& name, PropertyTree schema)
{
    PropertyTree line;
    line["name"] = name;
    line["schema"] = std::move(schema);
    file << WriteJson(line) << '\n';
}

void WriteSchemas(const std::string& folder)
{
    std::ofstream file(folder + "/schemas.jsonl");
    WriteSchema(file, "open", JsonSchema());
    WriteSchema(file, "closed", JsonSchema({.allowUnknownKeys = false}));
    WriteSchema(file, "texts", JsonSchema({.nonFiniteAsText = true}));
    for (const std::string& id : PhotoCore::RegisteredClassIds())
    {
        WriteSchema(file, id, *JsonSchema(id));
    }
}

void WriteTree(std::ofstream& file, const PropertyTree& tree, bool isClosed)
{
    PropertyTree line;
    line["schema"] = Fuzz::HasNonFinite(tree) ? "texts" : isClosed ? "closed" : "open";
    line["tree"] = tree;
    line["findings"].makeList();
    for (const Finding& finding : Check(tree))
    {
        line["findings"].append(std::string(TextOf(SeverityOf(finding.code))) + " " + std::string(TextOf(finding.code)));
    }
    file << WriteJson(line, AS_TEXTS) << '\n';
}

unsigned NumberOf(std::string_view text)
{
    unsigned number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4)
    {
        std::cerr << "usage: write-schema-trees FOLDER COUNT SEED\n";
        return EXIT_FAILURE;
    }
    const std::string folder = argv[1];
    WriteSchemas(folder);
    std::ofstream file(folder + "/trees.jsonl");
    Fuzz::Mutation mutation(NumberOf(argv[3]));
    for (unsigned left = NumberOf(argv[2]); left != 0;)
    {
        PropertyTree tree;
        for (std::size_t changes = 1 + mutation.Below(6); changes != 0 && left != 0; --changes, --left)
        {
            mutation.ChangeInput(tree);
            WriteTree(file, tree, mutation.IsOneIn(2));
            WriteTree(file, Mended(tree, Check(tree)), mutation.IsOneIn(2)); // most of which pass
        }
    }
    return file.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
