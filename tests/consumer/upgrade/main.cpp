// A program that is compiled with a release and then runs with later libraries: upgrade.sh. It prints what it finds, and must
// print the same with each of them. So it prints nothing that a later version may add to (lists of classes, of keys, of
// properties) or word otherwise (messages).

#include "Exercise.h"
#include "FrameSettings.h"

#include "Exception/Exception.h"
#include "Inspection/Changes.h"
#include "Inspection/Check.h"
#include "Inspection/Describe.h"
#include "Inspection/Forms.h"
#include "Inspection/JsonPatch.h"
#include "Inspection/Merge.h"
#include "Inspection/StoredEffects.h"
#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/CropSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "Proc/EffectSettings/FacePackageSettings.h"
#include "Proc/EffectSettings/ResizeSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "PropertyTree/PropertyTreeOutput.h"
#include "PropertyTreeJson/JsonPlaces.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

using namespace Ombrel;
using PhotoCore::EffectSettings;
using PhotoCore::IEffectSettings;

namespace
{

using EffectPtr = std::shared_ptr<IEffectSettings>;

EffectPtr Read(const PropertyTree& tree)
{
    EffectPtr effect;
    EffectSettings::DeserializePtr(tree, effect);
    return effect;
}

PropertyTree Written(const EffectPtr& effect)
{
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect);
    return tree;
}

// The stored effects of the release, through everything that an effect does.
void ReadExamples(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
    {
        files.push_back(entry.path());
    }
    std::ranges::sort(files);
    for (const std::filesystem::path& file : files)
    {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        const PropertyTree tree = ReadJson(text.str());
        const EffectPtr effect = Read(tree);
        const IEffectSettings& same = *effect;
        std::cout << file.filename().string() << ": " << same.GetClassId() << ' ' << same.GetImplName() << ' '
                  << same.GetEffectSettings().GetClassId() << ' ' << same.IsAdditive() << same.IsEmpty()
                  << same.GetEffectSettings().IsEmpty() << ' ' << WriteJson(Written(effect)) << '\n';
        const EffectPtr clone = same.Clone();
        std::cout << "  clone " << IEffectSettings::Equals(clone, effect) << (*clone == same) << (*clone != same)
                  << (Written(clone) == Written(effect)) << '\n';
        if (dynamic_cast<const PhotoCore::EffectSettingsSimple*>(effect.get()) == nullptr) // which has no record yet
        {
            clone->SetEffectSettings(effect->GetEffectSettings());
        }
        clone->HelperSetting().SetUndoSet(true);
        clone->Deserialize(Written(effect));
        const auto properties = clone->GetPropertyAccess();
        for (const auto& [key, value] : tree.getMap())
        {
            if (properties && key != "name" && key != "implName" && key != "helperSettings")
            {
                properties->SetProperty(key, properties->GetProperty(key));
                std::cout << "  " << key << " = " << WriteJson(properties->GetProperty(key)) << '\n';
            }
        }
        std::cout << "  " << WriteJson(Written(clone)) << '\n';
    }
}

void CombineEffects()
{
    PhotoCore::CropSettings crop, other;
    Upgrade::Maker make;
    Upgrade::Change(other.GetTypedSettings(), make);
    static_cast<IEffectSettings&>(crop).Add(other);
    std::cout << Upgrade::Stored(crop.Clone()) << '\n';

    PhotoCore::ResizeSettings resize;
    resize.SetResolution(300.0);
    resize.SetUOM(PhotoCore::ResizeSettings::SizeUOM::cm);
    resize.GetTypedSettings().SetCustomMode(Proc::SettingsResizer::CustomModes::Fill,
                                            {.width = 3, .height = 5, .ax = 7, .ay = 9});
    std::cout << Upgrade::Stored(resize.Clone()) << ' ' << resize.GetTypedSettings().GetFrameInfo().ay << '\n';
    resize.GetTypedSettings().SetCustomScale(0.5);
    std::cout << Upgrade::Stored(resize.Clone()) << ' ' << resize.GetTypedSettings().GetScaleFactor()
              << static_cast<int>(resize.GetTypedSettings().GetSizeMode()) << '\n';

    const auto tile = PhotoCore::TileSettings::Create(2, 1);
    const auto acid = PhotoCore::AcidSettings::Create({});
    acid->GetTypedSettings().radius = 4;
    tile->Pre().push_back(acid);
    tile->Effect(1, 0).push_back(acid->Clone());
    tile->Post().push_back(nullptr);
    const PhotoCore::TileSettings copy(*tile);
    std::cout << Upgrade::Stored(tile) << (copy == *tile) << copy.GetWidth() << copy.GetHeight() << '\n';

    PhotoCore::SettingsEffectFacePackage::FaceItem item;
    item.face.m_outline.m_contour = {{1, 2}, {3, 4}};
    item.face.m_framePoints.second = {5, 6};
    item.effect = acid;
    PhotoCore::FacePackageSettings faces(PhotoCore::SettingsEffectFacePackage(1, {item, item}));
    std::cout << Upgrade::Stored(faces.Clone()) << faces.GetTypedSettings().GetCurrentFace()
              << faces.GetTypedSettings().GetFaces().at(1).face.m_framePoints.second.m_y << '\n';

    PhotoCore::HelperSettings helper;
    helper.SetApplyMode({PhotoCore::HelperSettings::ApplySetting::ApplyStop});
    helper.SetApplyModeFlag(PhotoCore::HelperSettings::ApplySetting::Invalid, true);
    helper.SetMaxHeight(12);
    PropertyTree tree;
    helper.Serialize(tree);
    PhotoCore::HelperSettings back;
    back.Deserialize(tree);
    std::cout << tree << (back == helper) << back.GetMaxHeight() << back.GetMaxWidth() << back.GetApplyMode().size() << '\n';
}

// An effect of the program's own, which derives from the library's classes.
void UseOwnEffect()
{
    PhotoCore::RegisterEffectClass<Studio::FrameSettings>();
    const EffectPtr effect = Read(
        ReadJson(R"({"name": "EFFECT_FRAME", "width": 3, "style": "double", "color": "ff8000ff", "dashes": [2.5], "new": 1})"));
    auto& frame = dynamic_cast<Studio::FrameSettings&>(*effect);
    frame.HelperSetting().SetUndoSet(true);
    frame.GetPropertyAccess()->SetProperty("width", -7);
    const Studio::FrameSettings copy(frame);
    std::cout << WriteJson(Written(effect)) << frame.GetTypedSettings().GetWidth() << frame.GetTypedSettings().m_dashes.size()
              << frame.IsEmpty() << (copy == frame) << copy.GetHelperSettings().GetUndoSet() << '\n';
    for (const std::string& key :
         frame.GetPropertyAccess()->ListProperties()) // of a class that no version of the library changes
    {
        std::cout << ' ' << key;
    }
    const auto description = Inspection::Describe("EFFECT_FRAME");
    std::cout << ' ' << description->className << ' '
              << WriteJson(Inspection::Thin(ReadJson(R"({"name": "EFFECT_FRAME", "width": 0, "new": 1})"))) << '\n';
}

void WalkTrees()
{
    PropertyTree tree;
    tree["text"] = "a text that is longer than any that stands in its object";
    tree["name"] = "EFFECT_ACID";
    tree["list"].append(true);
    tree["list"].append(-5);
    tree["list"].append(0.25);
    tree["map"]["inner"] = tree["list"];
    for (int index = 0; index != 40; ++index) // more than a map holds without an index
    {
        tree["many"]["key" + std::to_string(index)] = index;
    }
    PropertyTree::Map& many = tree["many"].getMap();
    for (auto entry = many.begin(); entry != many.end();)
    {
        entry = entry->second.getScalar().toInt() % 3 != 0 ? many.erase(entry) : std::next(entry);
    }
    many.insert_or_assign("key1", PropertyTree(1.5));
    many.try_emplace("key1", PropertyTree(2));
    std::cout << many.size() << many.contains("key3") << (many.find("key4") == many.end()) << std::prev(many.end())->first
              << '\n';

    std::vector<PropertyTree> trees{tree, std::move(tree)};
    swap(trees[0], trees[1]);
    for (const PropertyTree copy = trees[0]; const auto& [key, value] : copy.getMap())
    {
        std::cout << key << ' ' << value.isNull() << value.isScalar() << value.isMap() << value.isList() << ' ' << value
                  << '\n';
    }
    for (PropertyTree element : trees[0]["list"].getList())
    {
        const PropertyTreeScalar scalar = element.getScalar();
        std::cout << static_cast<int>(scalar.kind()) << (scalar == PropertyTreeScalar(-5)) << ' ';
    }
    trees[1].getMap().erase("many");
    std::cout << (trees[0] == trees[1]) << trees[1].getMap().size() << '\n';
    PropertyTree list;
    list.makeList(3).resize(2);
    list.getList()[1] = std::move(trees[1]);
    list = list.getList()[1];
    std::cout << list["map"]["inner"].getList().at(2).getScalar().toDouble() << '\n';
}

// Which of these a failure is, and what is promised of its text.
template <class Action> void Catch(const char* what, Action action)
{
    std::cout << what << ": ";
    try
    {
        action();
        std::cout << "nothing thrown\n";
    }
    catch (const JsonError& error)
    {
        std::cout << "JsonError " << error.line() << ' ' << error.column() << ' ' << error.path() << '\n';
    }
    catch (const JsonWriteError& error)
    {
        std::cout << "JsonWriteError " << error.path() << '\n';
    }
    catch (const Inspection::ConflictError& error)
    {
        std::cout << "ConflictError " << error.Place().ToText() << ' ' << *error.Expected() << ' ' << *error.Found() << '\n';
    }
    catch (const Inspection::JsonPatchError& error)
    {
        std::cout << "JsonPatchError " << error.Operation() << '\n';
    }
    catch (const Exception& error)
    {
        const std::string* text = boost::get_error_info<ErrorDescription>(error);
        std::cout << "Exception " << (text != nullptr ? *text : "without a text") << ' ' << (DescribeFailure(error) == *text)
                  << '\n';
    }
    catch (const std::out_of_range&)
    {
        std::cout << "std::out_of_range\n";
    }
    catch (const std::invalid_argument&)
    {
        std::cout << "std::invalid_argument\n";
    }
    catch (const std::bad_cast&)
    {
        std::cout << "std::bad_cast\n";
    }
}

void CatchFailures()
{
    Catch("an unknown id", [] { IEffectSettings::CreateEffectSettings("EFFECT_OF_NOBODY"); });
    Catch("a known id", [] { IEffectSettings::RegisterFactory("EFFECT_ACID", &PhotoCore::AcidSettings::CreateBase); });
    Catch("a text that is no JSON", [] { ReadJson("{\n\"a\": [1, 2"); });
    Catch("a key twice", [] { ReadJson(R"([{"a": 1, "a": 2}])"); });
    Catch("too deep", [] { ReadJson("[[1]]", {.maxDepth = 1}); });
    Catch("too many values", [] { ReadJson("[1, 2]", {.maxValues = 2}); });
    Catch("no number", [] { WriteJson(ReadJson(R"(["NaN"])", {.nonFiniteAsText = true})); });
    Catch("a wrong kind", [] { Read(ReadJson(R"({"name": "EFFECT_ACID", "radius": "3"})")); });
    Catch("no name", [] { Read(ReadJson(R"({"radius": 3})")); });
    Catch("a list", [] { PropertyTree(3).getList(); });
    Catch("a record of another class",
          [] { PhotoCore::AcidSettings().SetEffectSettings(PhotoCore::CropSettings().GetEffectSettings()); });
    Catch("no key", [] { PhotoCore::AcidSettings().GetPropertyAccess()->GetProperty("gamma"); });
    Catch("a patch",
          []
          {
              PropertyTree tree = ReadJson("[1]");
              Inspection::ApplyJsonPatch(ReadJson(R"([{"op": "remove", "path": "/0"}, {"op": "remove", "path": "/0"}])"), tree,
                                         {.maxCopied = 1});
          });
    Catch("a change",
          []
          {
              PropertyTree tree = ReadJson(R"({"name": "EFFECT_ACID", "radius": 3})");
              Inspection::Apply(
                  Inspection::Diff(ReadJson(R"({"name": "EFFECT_ACID"})"), ReadJson(R"({"name": "EFFECT_ACID", "radius": 2})")),
                  tree);
          });
}

void Print(const std::vector<Inspection::Finding>& findings)
{
    for (const Inspection::Finding& finding : findings)
    {
        std::cout << ' ' << finding.path.ToText() << ' ' << finding.path.Steps().size() << ' ' << TextOf(finding.code) << ' '
                  << TextOf(SeverityOf(finding.code)) << ' ' << static_cast<int>(finding.mend) << ' '
                  << finding.expected.empty() << ' ' << finding.found << " -> " << finding.becomes << '\n';
    }
}

void Inspect()
{
    const std::string text = R"([
        {"name": "EFFECT_OF_NOBODY", "height": 0.5},
        {"name": "EFFECT_ACID", "radius": 3.5, "sigmas": 7},
        {"name": "EFFECT_TRANSPOSE", "angle": "Angle_80"},
        {"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": "3"}, "contrast": 0}
    ])";
    const PropertyTree stored = ReadJson(text);
    const auto findings = Inspection::Check(stored);
    Print(findings);
    std::cout << Inspection::Check(stored, {.maxFindings = 2}).size() << ' ' << WriteJson(Inspection::Mended(stored, findings))
              << '\n';
    const JsonPlaces places(text);
    const JsonPlace place = *places.Find(std::vector<std::string>{"3", "smartBlur", "lumaRadius"});
    std::cout << place.line << ' ' << place.column << '\n'
              << WriteJson(Inspection::Thin(stored)) << '\n'
              << WriteJson(Inspection::Normalise(stored)) << '\n'
              << (Inspection::Diff(stored, Inspection::Freeze(stored)).empty()) << '\n';

    Inspection::StoredEffects effects;
    effects.Load(stored);
    Print(effects.Findings());
    effects.Effect(1)->GetPropertyAccess()->SetProperty("radius", 5);
    effects.Move(1, 0);
    effects.Insert(4, PhotoCore::VibranceSettings::Create({}));
    effects.Replace(2, effects.Effect(2)->Clone());
    std::cout << effects.Size() << effects.Effects().size() << effects.Loaded(1) << WriteJson(effects.Save()) << '\n';
    effects.SetEffects(std::vector{effects.Effect(2), effects.Effect(0)});
    effects.Remove(0);
    Inspection::StoredEffects moved(std::move(effects));
    std::cout << WriteJson(moved.Save()) << WriteJson(moved.Save(0)) << '\n';

    const PropertyTree after = ReadJson(R"([{"name": "EFFECT_ADJUSTER", "contrast": 2.5}, {"name": "EFFECT_SEPIA"},
                                            {"name": "EFFECT_ACID", "radius": 4, "sigmas": 8}])");
    const Inspection::ChangeList changes = Inspection::Diff(stored, after);
    for (const Inspection::Change& change : changes)
    {
        std::cout << ' ' << static_cast<int>(change.kind) << change.isUnordered << ' ' << change.path.ToText() << ' '
                  << change.target << ' ' << change.before.value_or("none") << " -> " << change.after.value_or("none") << ' '
                  << change.stored.path.ToText() << '\n';
    }
    PropertyTree tree = stored;
    Inspection::Apply(changes, tree);
    std::cout << Inspection::Diff(tree, after).size();
    Inspection::Apply(Inspection::Joined(Inspection::Inverse(changes), {}), tree);
    PropertyTree patched = stored;
    Inspection::ApplyJsonPatch(Inspection::ToJsonPatch(changes), patched);
    std::cout << (tree == stored) << Inspection::Diff(patched, after).size() << '\n';
    std::vector<EffectPtr> list{Read(after.getList()[0]), Read(after.getList()[2])};
    Inspection::Apply(Inspection::Diff(ReadJson(R"([{"name": "EFFECT_ADJUSTER", "contrast": 2.5}])"),
                                       ReadJson(R"([{"name": "EFFECT_ADJUSTER"}])")),
                      list);
    std::cout << WriteJson(Written(list[0])) << '\n';

    const auto merged = Inspection::Merge(
        ReadJson(R"([{"name": "EFFECT_ACID", "radius": 2}])"), ReadJson(R"([{"name": "EFFECT_ACID", "radius": 3}])"),
        ReadJson(R"([{"name": "EFFECT_SEPIA"}, {"name": "EFFECT_ACID", "radius": 4, "sigma": 1}])"));
    for (const Inspection::MergeConflict& conflict : merged.conflicts)
    {
        std::cout << ' ' << conflict.path.ToText() << ' ' << conflict.base.value_or("none") << ' '
                  << conflict.ours.value_or("none") << ' ' << conflict.theirs.value_or("none") << '\n';
    }
    std::cout << WriteJson(merged.merged) << '\n';
}

} // namespace

// upgrade EXAMPLES: the folder of the release's stored effects.
int main(int argc, char** argv)
try
{
    if (argc != 2)
    {
        throw std::runtime_error("the folder of the stored effects is missing");
    }
    std::cout << std::boolalpha << "== examples\n";
    ReadExamples(argv[1]);
    std::cout << "== records\n";
    Upgrade::ExerciseAll();
    std::cout << "== effects\n";
    CombineEffects();
    UseOwnEffect();
    std::cout << "== trees\n";
    WalkTrees();
    std::cout << "== failures\n";
    CatchFailures();
    std::cout << "== inspection\n";
    Inspect();
}
catch (const std::exception& failure)
{
    std::cout << DescribeFailure(failure) << std::endl;
    return 1;
}
