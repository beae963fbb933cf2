#include "Inspection/Release.h"
#include "Inspection/PackedTree.h"
#include "OmbrelVersion.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "release/FrozenRelease.h"
#include "release/Rules.h"
#include "release/Samples.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

// This build is held to every frozen release.
namespace
{

using namespace Release;
using Ombrel::PropertyTree;
namespace fs = std::filesystem;

const fs::path RELEASES = OMBREL_RELEASES;
const fs::path MANIFESTS = OMBREL_MANIFESTS; // packed, in the sources

PropertyTree ManifestIn(const fs::path& folder)
{
    return Ombrel::ReadJson(ReadFile(folder / "manifest.json"));
}

WantedBreaks& Wanted()
{
    static WantedBreaks wanted(ReadFile(RELEASES / "breaks.md"));
    return wanted;
}

void ExpectNone(const std::string& release, const std::vector<Break>& breaks)
{
    for (const Break& change : breaks)
    {
        if (!Wanted().IsWanted(release, change))
        {
            ADD_FAILURE() << "since release " << release << ": " << change.Text()
                          << "\nIf that is wanted, releases/breaks.md says it with its reason in a line: - `" << release << ' '
                          << change.Id() << "` ...";
        }
    }
}

TEST(Release, TodaysManifestKeepsWhatEachReleaseStored)
{
    const PropertyTree today = Ombrel::Inspection::Manifest("today");
    for (const fs::path& folder : FrozenReleases(RELEASES))
    {
        const std::string release = folder.filename().string();
        const Comparison comparison = Compare(ManifestIn(folder), today);
        ExpectNone(release, comparison.breaks);
        for (const std::string& addition : comparison.additions)
        {
            std::cout << "added since release " << release << ": " << addition << "\n";
        }
        if (release == std::to_string(OMBREL_VERSION_MAJOR) + "." + std::to_string(OMBREL_VERSION_MINOR))
        {
            EXPECT_TRUE(comparison.additions.empty())
                << "a patch release stores what its minor release stores, so the minor version must rise first";
        }
    }
    EXPECT_EQ(Wanted().Unused(), std::vector<std::string>()) << "breaks that nothing needs any more";
}

TEST(Release, SamplesReadAndWriteAsTheyDid)
{
    for (const fs::path& folder : FrozenReleases(RELEASES))
    {
        const std::string release = folder.filename().string();
        std::size_t samples = 0;
        const PropertyTree manifest = ManifestIn(folder);
        // What follows from what the manifest says is said once.
        std::string known;
        for (const Break& change : Compare(manifest, Ombrel::Inspection::Manifest("today")).breaks)
        {
            known += "- `" + release + " " + change.Id() + "` known\n";
        }
        WantedBreaks following(known);
        for (const PropertyTree& described : manifest["classes"].getList())
        {
            const std::string id = TextIn(described, "id");
            const PropertyTree defaults = DefaultsOf(described);
            std::istringstream lines(ReadFile(folder / "samples" / (id + ".jsonl")));
            for (std::string line; std::getline(lines, line); ++samples)
            {
                PropertyTree sample = Ombrel::ReadJson(line, {.nonFiniteAsText = true});
                const PropertyTree& tree = sample["tree"];
                if (!sample.contains("refused"))
                {
                    sample["full"] = sample.contains("full") ? FullOf(sample["full"], defaults) : defaults;
                    if (!sample.contains("written"))
                    {
                        sample["written"] = tree;
                    }
                }
                std::vector<Break> breaks = CompareOutcomes(id, TextIn(sample, "name"), sample, OutcomeOf(tree));
                std::erase_if(breaks, [&](const Break& change) { return following.IsWanted(release, change); });
                ExpectNone(release, breaks);
            }
        }
        EXPECT_GT(samples, 2500u);
    }
}

TEST(Release, LibraryContainsTheManifestOfEach)
{
    std::vector<std::string> names;
    std::size_t size = 0;
    for (const fs::path& folder : FrozenReleases(RELEASES))
    {
        const PropertyTree manifest = ManifestIn(folder);
        names.push_back(folder.filename().string());
        EXPECT_EQ(TextIn(manifest, "release"), names.back());
        EXPECT_EQ(ReadFile(MANIFESTS / (names.back() + ".inc")), SourceOf(manifest)) << folder;
        const std::vector<std::uint8_t> packed = Ombrel::Inspection::Pack(manifest);
        EXPECT_TRUE(Ombrel::Inspection::Unpack(packed) == manifest) << folder;
        size += packed.size();
    }
    const std::vector<std::string_view> known = Ombrel::Inspection::ReleaseNames();
    EXPECT_EQ(std::vector<std::string>(known.begin(), known.end()), names);
    EXPECT_LT(size, 64u * 1024);
}

TEST(Release, FoldersHoldAtMostTwoMegabytes)
{
    for (const fs::path& folder : FrozenReleases(RELEASES))
    {
        std::uintmax_t size = 0;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
        {
            size += entry.is_regular_file() ? entry.file_size() : 0;
        }
        EXPECT_LE(size, 2'000'000u) << folder;
    }
}

TEST(Release, IsWrittenOnce)
{
    EXPECT_THROW(WriteRelease("0.1", RELEASES / "0.1", "none"), std::runtime_error);
}

} // namespace
