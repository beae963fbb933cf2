// Checks or reads the tree of 1,000 mixed effects that nothing is wrong with. Counted under callgrind, with
// `--toggle-collect=Measured*`, it gives the instructions of that alone.

#include "EffectLists.h"
#include "Inspection/Check.h"
#include "Samples.h"

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

PropertyTree MixedEffects()
{
    PhotoCore::IEffectSettings::List effects;
    for (const std::unique_ptr<Proc::Settings>& record : Benchmarks::FullRecords(1000, Benchmarks::Faces::Without))
    {
        effects.push_back(PhotoCore::IEffectSettings::CreateEffectSettings(record->GetClassId()));
        effects.back()->SetEffectSettings(*record);
    }
    return Benchmarks::WriteEffects(effects);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string_view what = argc == 2 ? argv[1] : "";
    const PropertyTree tree = MixedEffects();
    if (!Inspection::Check(tree).empty() || Benchmarks::ReadEffects(tree).size() != 1000) // does all for the first time, too
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
    std::cerr << "usage: " << argv[0] << " check|read\n";
    return EXIT_FAILURE;
}
