#include "RandomTrees.h"
#include "StoredEffects.h"

#include "Inspection/Check.h"
#include "Inspection/JsonSchema.h"
#include "Proc/EffectSettings/EffectPointerCodec.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/SettingsRecord.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// write-schema-trees FOLDER COUNT SEED: the schemas, and COUNT random trees of all classes, and some of a caller's, with what a
// check says of each, for a validator that is none of ours. The trees are the same for the same SEED.
//
// "schemas.jsonl" has a line {"name": ..., "schema": ...} for each schema: "open", "closed" and "texts" of all effects, and one
// for each class id. "trees.jsonl" has a line {"schema": ..., "findings": [...], "tree": ...} for each tree, where a finding is
// a severity and a code.
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

constexpr JsonWriteOptions AS_TEXTS{.nonFiniteAsText = true};

// A caller's class with what none of the library's has.
struct Branch
{
    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        using R = Branch;
        return Proc::Describe<R, FieldList<FieldDescriptor<&R::m_branches>, FieldDescriptor<&R::m_ends>>>();
    }

    bool operator==(const Branch& other) const { return m_branches == other.m_branches && m_ends == other.m_ends; }

    std::vector<Branch> m_branches;
    std::pair<std::int64_t, bool> m_ends;
};

struct Plan : Proc::SettingsRecord<Plan>
{
    static constexpr const char* CLASS_NAME = "a caller's/plan~1 %";
    static const std::string CLASS_ID;

    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        using R = Plan;
        return Proc::Describe<R, FieldList<FieldDescriptor<&R::m_root>, FieldDescriptor<&R::m_sizes>,
                                           FieldDescriptor<&R::m_texts>, FieldDescriptor<&R::m_effect>>>();
    }

    bool operator==(const Plan& other) const { return m_root == other.m_root; }

    Branch m_root;
    std::set<std::int32_t> m_sizes;
    std::vector<std::vector<std::string>> m_texts;
    std::shared_ptr<PhotoCore::IEffectSettings> m_effect;
};

const std::string Plan::CLASS_ID{CLASS_NAME};

class PlanSettings : public PhotoCore::EffectSettingsOneInputReflection<Plan, PlanSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;
};

class UnlistedSettings : public PhotoCore::EffectSettingsOneInput<Plan, UnlistedSettings>
{
public:
    using EffectSettingsInput::EffectSettingsInput;
};

void RegisterClasses()
{
    PhotoCore::RegisterEffectClass<PlanSettings>();
    PhotoCore::RegisterEffectClass({"UnlistedSettings", "UNLISTED", &UnlistedSettings::CreateBase, &UnlistedSettings::GetSchema,
                                    UnlistedSettings::GetStoredSource(), PhotoCore::Registration::Factory});
    PhotoCore::IEffectSettings::RegisterFactory("FACTORY", &PlanSettings::CreateBase);
}

// Without the name of the first class.
constexpr const char* OF_CALLERS[] = {
    R"()",
    R"("root": {})",
    R"("root": [])",
    R"("root": {"branches": [{"branches": [{}, {"ends": {"first": -9223372036854775808, "second": true}}]}]})",
    R"("root": {"branches": [{"branches": [{}, {"ends": {"first": 1, "second": 1}}]}]})",
    R"("root": {"branches": [{"branches": [{}, {"ends": {"first": 9223372036854775808.0}}]}]})",
    R"("root": {"branches": [{"branches": [{}, {"third": 1}]}]})",
    R"("root": {"branches": [{"branches": {}}]})",
    R"("root": {"ends": {"first": 4e18}})",
    R"("root": {"ends": [1, true]})",
    R"("sizes": [1, 2])",
    R"("sizes": [2, 1])",
    R"("sizes": [1, 1])",
    R"("sizes": [1, 1.0])",
    R"("sizes": [1, 2147483648])",
    R"("sizes": [1, "2"])",
    R"("texts": [[], ["a", ""]])",
    R"("texts": [[], ["a", 1]])",
    R"("texts": [[], "a"])",
    R"("effect": null)",
    R"("effect": {"name": "a caller's/plan~1 %", "sizes": [5]})",
    R"("effect": {"name": "a caller's/plan~1 %", "sizes": 5})",
    R"("effect": {"name": "EFFECT_BLEND"})",
    R"("effect": {"name": "UNLISTED", "sizes": {}, "implName": 3})",
    R"("effect": {"name": "FACTORY", "sizes": {}, "implName": 3})",
    R"("effect": 3)",
    R"("more": 3)",
    R"("implName": 3)",
};

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

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4)
    {
        std::cerr << "usage: write-schema-trees FOLDER COUNT SEED\n";
        return EXIT_FAILURE;
    }
    RegisterClasses();
    const std::string folder = argv[1];
    WriteSchemas(folder);
    std::ofstream file(folder + "/trees.jsonl");
    for (const std::string fields : OF_CALLERS)
    {
        const PropertyTree tree =
            ReadJson(R"({"name": ")" + std::string(Plan::CLASS_NAME) + (fields.empty() ? "\"" : "\", ") + fields + "}");
        WriteTree(file, tree, true);
        WriteTree(file, tree, false);
    }
    Fuzz::Mutation mutation(Fuzz::NumberOf(argv[3]));
    for (unsigned left = Fuzz::NumberOf(argv[2]); left != 0;)
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
