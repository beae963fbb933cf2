// What an editor does with its stored effects, on the lists beside this file: reads them, makes the effects by their class
// ids, changes one value by its key, compares with the original and writes everything back. In packages.json effects stand in
// packages that stand in one another.

#include "Proc/EffectSettings/EffectSettings.h"
#include "PropertyTree/PropertyTree.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <ios>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;

constexpr const char* CHANGED_EFFECT = "EFFECT_VIBRANCE";
constexpr const char* CHANGED_KEY = "strength";
constexpr int NEW_VALUE = 40;

std::string ReadFile(const std::filesystem::path& path)
{
    std::string text(static_cast<std::size_t>(std::filesystem::file_size(path)), '\0');
    std::ifstream file(path, std::ios::binary);
    if (!file.read(text.data(), static_cast<std::streamsize>(text.size())))
    {
        throw std::runtime_error("cannot read " + path.string());
    }
    return text;
}

void WriteFile(const std::filesystem::path& path, const std::string& text)
{
    std::ofstream file(path, std::ios::binary);
    file << text << std::flush;
    if (!file)
    {
        throw std::runtime_error("cannot write " + path.string());
    }
}

void Require(bool condition, const char* complaint)
{
    if (!condition)
    {
        throw std::runtime_error(complaint);
    }
}

std::int64_t StoredInteger(const IEffectSettings& effect, const char* key)
{
    return effect.GetPropertyAccess()->GetProperty(key).getScalar().toInt();
}

IEffectSettings::List EffectsFromText(const std::string& text)
{
    const PropertyTree tree = Ombrel::ReadJson(text);
    IEffectSettings::List effects;
    for (const PropertyTree& element : tree.getList())
    {
        EffectSettings::DeserializePtr(element, effects.emplace_back());
    }
    return effects;
}

std::string TextFromEffects(const IEffectSettings::List& effects)
{
    PropertyTree tree;
    tree.convertToList();
    for (const auto& effect : effects)
    {
        tree.append({});
        EffectSettings::SerializePtr(tree.getList().back(), effect);
    }
    return Ombrel::WriteJson(tree, {.indent = 2}) + "\n";
}

// The mean over as many runs as fit into a moment, so that a short list has a steady figure too.
template <class Work> double MicrosecondsPerEffect(std::size_t effectCount, Work work)
{
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    std::chrono::duration<double, std::micro> elapsed{};
    std::size_t runs = 0;
    do
    {
        work();
        ++runs;
        elapsed = Clock::now() - begin;
    } while (elapsed < std::chrono::milliseconds(50));
    return elapsed.count() / static_cast<double>(runs * effectCount);
}

void PrintClasses(const IEffectSettings::List& effects)
{
    std::map<std::string, int> counts;
    for (const auto& effect : effects)
    {
        ++counts[effect->GetClassId()];
    }
    const char* separator = "";
    for (const auto& [classId, count] : counts)
    {
        std::cout << separator << count << " " << classId;
        separator = ", ";
    }
    std::cout << "\n";
}

// Changes one value of a clone and puts the clone in the place of the original. Returns the original.
std::shared_ptr<IEffectSettings> ChangeOneValue(IEffectSettings::List& effects)
{
    for (auto& effect : effects)
    {
        if (effect->GetClassId() == CHANGED_EFFECT)
        {
            auto original = effect;
            effect = original->Clone();
            effect->GetPropertyAccess()->SetProperty(CHANGED_KEY, NEW_VALUE);
            return original;
        }
    }
    throw std::runtime_error(std::string("no ") + CHANGED_EFFECT + " in the list");
}

void ShowWork(const std::filesystem::path& input, const std::filesystem::path& outputFolder)
{
    const std::string text = ReadFile(input);
    IEffectSettings::List effects = EffectsFromText(text);
    std::cout << input.string() << ": " << effects.size() << " effects\n  made by class id: ";
    PrintClasses(effects);

    Require(TextFromEffects(effects) == text, "the list came back as another text");
    std::cout << "  written back as it was: the same " << text.size() << " bytes\n";

    const auto original = ChangeOneValue(effects);
    const auto changed = IEffectSettings::Find(effects, CHANGED_EFFECT);
    Require(*changed != *original, "a changed effect equals its original");
    std::cout << "  changed by key: " << CHANGED_KEY << " of the first " << CHANGED_EFFECT << " from "
              << StoredInteger(*original, CHANGED_KEY) << " to " << StoredInteger(*changed, CHANGED_KEY)
              << "; it no longer equals the original\n";

    const std::filesystem::path output = outputFolder / input.filename();
    WriteFile(output, TextFromEffects(effects));
    std::cout << "  written to: " << output.string() << "\n";

    std::cout << "  time per effect: " << MicrosecondsPerEffect(effects.size(), [&] { return EffectsFromText(text); })
              << " us to read, " << MicrosecondsPerEffect(effects.size(), [&] { return TextFromEffects(effects); })
              << " us to write\n";
}

// The folder holds one effect of every class that the registry knows, a file each.
void ShowEveryEffect(const std::filesystem::path& folder)
{
    std::size_t unlikeTheirClones = 0;
    for (const std::filesystem::path& file : std::filesystem::directory_iterator(folder))
    {
        const std::string text = ReadFile(file);
        std::shared_ptr<IEffectSettings> effect;
        EffectSettings::DeserializePtr(Ombrel::ReadJson(text), effect);
        const auto clone = effect->Clone();
        PropertyTree tree;
        EffectSettings::SerializePtr(tree, clone);
        Require(Ombrel::WriteJson(tree, {.indent = 4}) + "\n" == text, "an effect came back as another text");
        unlikeTheirClones += *clone == *effect ? 0U : 1U;
    }
    Require(unlikeTheirClones == 1, "more than one effect differs from its clone");
    std::cout << folder.string() << ": one effect of each registered class\n"
              << "  made by class id and cloned: each equals its clone, but effectSettingsSimple, which equals nothing\n"
              << "  written back from the clones: the same texts\n";
}

// Effects whose getters compute, so that their values change on the way. Stored trees rely on it: it stays as it is.
void ShowChangingEffects(const std::filesystem::path& input)
{
    const std::map<std::string, const char*> reasons{
        {"EFFECT_OIL_PAINT", "the getter of radius gives what was set times intensity"},
        {"EFFECT_RETRO_ARTEFACTS", "the getters of the three amounts give what was set times intensity"},
        {"EFFECT_FISH_EYE", "deviation is intensity times a factor, and is read before intensity, while that is still 1"},
    };
    const PropertyTree before = Ombrel::ReadJson(ReadFile(input));
    const PropertyTree after = Ombrel::ReadJson(TextFromEffects(EffectsFromText(ReadFile(input))));
    std::cout << input.string() << ": " << before.getList().size() << " effects that change on the way\n";
    for (std::size_t i = 0; i < before.getList().size(); ++i)
    {
        const auto& stored = before.getList()[i].getMap();
        const auto& written = after.getList()[i].getMap();
        const std::string& classId = stored.at("name").getScalar().toString();
        std::cout << "  " << classId << ": ";
        for (const auto& [key, value] : stored)
        {
            if (written.at(key) != value)
            {
                std::cout << key << " " << Ombrel::WriteJson(value) << " -> " << Ombrel::WriteJson(written.at(key)) << "; ";
            }
        }
        std::cout << reasons.at(classId) << "\n";
    }
}

} // namespace

int main(int argc, char** argv)
try
{
    if (argc != 3)
    {
        std::cerr << "usage: ombrel-demo EXAMPLES_FOLDER OUTPUT_FOLDER\n";
        return EXIT_FAILURE;
    }
    const std::filesystem::path examples(argv[1]);
    std::filesystem::create_directories(argv[2]);
    std::cout << std::fixed << std::setprecision(1);
    for (const char* list : {"portrait.json", "landscape.json", "batch.json", "packages.json"})
    {
        ShowWork(examples / list, argv[2]);
    }
    ShowEveryEffect(examples / "effects");
    ShowChangingEffects(examples / "changing.json");
    return EXIT_SUCCESS;
}
catch (const std::exception& error)
{
    std::cerr << "ombrel-demo: " << error.what() << "\n";
    return EXIT_FAILURE;
}
