// Checks, reads or compares the tree of so many mixed effects that nothing is wrong with. Counted under callgrind, with
// `--toggle-collect=Measured*`, it gives the instructions of that alone.

#include "EffectLists.h"
#include "Inspection/Changes.h"
#include "Inspection/Check.h"
#include "Samples.h"

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <string_view>

using namespace Ombrel;

// Has its name in the program, by which the count is switched on and off.
extern "C" [[gnu::noinline]] void Measured(const std::function<void()>& work)
{
    work();
}

namespace
{

PropertyTree MixedEffects(std::size_t count)
{
    PhotoCore::IEffectSettings::List effects;
    for (const std::unique_ptr<Proc::Settings>& record : Benchmarks::FullRecords(count, Benchmarks::Faces::Without))
    {
        effects.push_back(PhotoCore::IEffectSettings::CreateEffectSettings(record->GetClassId()));
        effects.back()->SetEffectSettings(*record);
    }
    return Benchmarks::WriteEffects(effects);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string_view what = argc == 3 ? argv[1] : "";
    const std::size_t count = argc == 3 ? std::strtoul(argv[2], nullptr, 10) : 0;
    const PropertyTree tree = MixedEffects(count);
    if (!Inspection::Check(tree).empty() || Benchmarks::ReadEffects(tree).size() != count) // does all for the first time, too
    {
        std::cerr << "the effects are not read as they are written\n";
        return EXIT_FAILURE;
    }
    if (what == "check")
    {
        Measured([&] { Inspection::Check(tree); });
        return EXIT_SUCCESS;
    }
    if (what == "read")
    {
        Measured([&] { Benchmarks::ReadEffects(tree); });
        return EXIT_SUCCESS;
    }
    if (what == "diff") // with themselves
    {
        const PropertyTree copy = tree;
        Measured([&] { Inspection::Diff(tree, copy); });
        return EXIT_SUCCESS;
    }
    std::cerr << "usage: " << argv[0] << " check|read|diff COUNT\n";
    return EXIT_FAILURE;
}
