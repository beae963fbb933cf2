#include "release/FrozenRelease.h"

#include "Inspection/PackedTree.h"
#include "Inspection/Release.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "release/Samples.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace Release
{
namespace
{

using Ombrel::PropertyTree;
namespace fs = std::filesystem;

void WriteFile(const fs::path& file, const std::string& text)
{
    std::ofstream stream(file, std::ios::binary);
    stream << text;
    if (!stream.flush())
    {
        throw std::runtime_error("cannot write " + file.string());
    }
}

// What a sample and its outcome are in a file: without what follows from the rest.
PropertyTree StoredOf(const Sample& sample, const PropertyTree& defaults)
{
    PropertyTree outcome = OutcomeOf(sample.tree);
    PropertyTree stored;
    stored["name"] = sample.name;
    stored["tree"] = sample.tree;
    if (outcome.contains("refused"))
    {
        stored["refused"] = outcome["refused"];
        return stored;
    }
    const PropertyTree difference = DifferenceOf(outcome["full"], defaults);
    if (!(FullOf(difference, defaults) == outcome["full"]))
    {
        throw std::logic_error("the full form of \"" + sample.name + "\" does not follow from what differs");
    }
    if (!difference.getMap().empty())
    {
        stored["full"] = difference;
    }
    stored["empty"] = outcome["empty"];
    if (!(outcome["written"] == sample.tree))
    {
        stored["written"] = outcome["written"];
    }
    return stored;
}

std::pair<int, int> NumberOf(const fs::path& folder)
{
    const std::string name = folder.filename().string();
    const std::size_t point = name.find('.');
    return {std::atoi(name.c_str()), point == std::string::npos ? 0 : std::atoi(name.c_str() + point + 1)};
}

} // namespace

std::string ReadFile(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
    {
        throw std::runtime_error("cannot read " + file.string());
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<fs::path> FrozenReleases(const fs::path& releases)
{
    std::vector<fs::path> folders;
    for (const fs::directory_entry& entry : fs::directory_iterator(releases))
    {
        if (entry.is_directory())
        {
            folders.push_back(entry.path());
        }
    }
    std::ranges::sort(folders, {}, &NumberOf);
    return folders;
}

std::string SourceOf(const PropertyTree& manifest)
{
    std::string name = "MANIFEST_" + manifest["release"].getScalar().toString();
    std::ranges::replace(name, '.', '_');
    std::string text = "constexpr std::uint8_t " + name + "[]{";
    std::size_t column = 120;
    for (const std::uint8_t byte : Ombrel::Inspection::Pack(manifest))
    {
        const std::string number = std::to_string(byte) + ",";
        if (column + number.size() > 120)
        {
            text += '\n';
            column = 0;
        }
        text += number;
        column += number.size();
    }
    return text + "\n};\n";
}

void WriteRelease(const std::string& release, const fs::path& folder, const fs::path& source)
{
    if (fs::exists(folder / "manifest.json"))
    {
        throw std::runtime_error("release " + release + " is frozen already: " + folder.string());
    }
    fs::create_directories(folder / "samples");
    const PropertyTree manifest = Ombrel::Inspection::Manifest(release);
    for (const PropertyTree& described : manifest["classes"].getList())
    {
        const PropertyTree defaults = DefaultsOf(described);
        std::string text;
        for (const Sample& sample : SamplesOf(manifest, described))
        {
            text += Ombrel::WriteJson(StoredOf(sample, defaults), {.nonFiniteAsText = true}) + "\n";
        }
        WriteFile(folder / "samples" / (described["id"].getScalar().toString() + ".jsonl"), text);
    }
    WriteFile(folder / "manifest.json", Ombrel::WriteJson(manifest, {.indent = 1}) + "\n");
    WriteFile(source, SourceOf(manifest));
}

} // namespace Release
